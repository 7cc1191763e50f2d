#pragma once

#include "views/book/cNationalSettings.h"

#include <QMenu>

// The languages of the program, to change with one click. Its title is in two languages, for who cannot read the other
// menus.
class cLanguageMenu final : public QMenu
{
    Q_OBJECT

public:
    // `settings` stores what is chosen.
    explicit cLanguageMenu(cNationalSettings& settings, QWidget* parent = nullptr);

private:
    void ShowCurrent();

    cNationalSettings& m_settings;
};
