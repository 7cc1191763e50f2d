#pragma once

#include "views/help/cManual.h"

#include <QObject>

class cShell;
class cUser;

// Goes from place to place in the manual and back.
class cManualBrowser final : public QObject
{
    Q_OBJECT

public:
    struct cPlace
    {
        QString Page;
        QString Anchor;   // empty: the beginning of the page
        int Position = 0; // where the page was left, as its view counts; -1: not been there yet
    };

    cManualBrowser(cShell& shell, cUser& user);

    [[nodiscard]] const cManual& Manual() const { return m_manual; }

    // A place of the manual, of this page ("#pin") or of another one; what is outside opens in the browser.
    void Open(const QString& address);

    [[nodiscard]] const cPlace& Place() const { return m_places.at(m_now); }
    [[nodiscard]] QString Html() const;   // of the page; says so when there is none
    [[nodiscard]] int SectionNow() const; // row of Sections() for the place; -1 for none

    [[nodiscard]] bool CanGoBack() const { return m_now > 0; }
    [[nodiscard]] bool CanGoForward() const { return m_now + 1 < m_places.size(); }
    void GoBack();
    void GoForward();
    void Leave(int position); // tells where the page stands, before it is left

Q_SIGNALS:
    void Opened(); // another place, or the same again

private:
    void OpenOutside(const QString& address);

    cShell& m_shell;
    cUser& m_user;
    cManual m_manual;
    QList<cPlace> m_places;
    qsizetype m_now = 0;
};
