#pragma once

#include "views/statement/cImportReview.h"
#include "windows/statement/frmImport.h"

#include <QCoreApplication>

// The page of bank statements on screen with its first rows painted.
struct cReviewPage
{
    // `tools` outlive it.
    explicit cReviewPage(const cBookTools& tools) : Review(tools)
    {
        Page.resize(1280, 800);
        Page.show();
        QCoreApplication::processEvents();
    }

    cImportReview Review;
    frmImport Page{Review};
};
