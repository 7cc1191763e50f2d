#pragma once

#include "views/statement/cImportReview.h"
#include "windows/statement/frmImport.h"

#include <QCoreApplication>

// The page of bank statements on screen with its first rows painted.
struct cReviewPage
{
    // `tools` outlive it. A page that a file opens is shown, and painted when the file is read.
    explicit cReviewPage(const cBookTools& tools, bool isPainted = true) : Review(tools)
    {
        Page.resize(1280, 800);
        Page.show();
        if (isPainted) {
            QCoreApplication::processEvents();
        }
    }

    cImportReview Review;
    frmImport Page{Review};
};
