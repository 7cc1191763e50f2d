#pragma once

#include <QMetaType>
#include <QWidget>

#include <functional>
#include <memory>
#include <vector>

// A window and the book that it shows, which has to outlive it.
struct cOpenWindow
{
    std::shared_ptr<void> Book;
    std::unique_ptr<QWidget> Window;
};

struct cWindowMaker
{
    const char* Name = nullptr;
    std::function<cOpenWindow()> Make;
};

// The windows that testEveryWindow walks.
[[nodiscard]] std::vector<cWindowMaker> EveryWindow();

Q_DECLARE_METATYPE(cWindowMaker)
