#pragma once

#include <QDate>
#include <QString>

#include <memory>

class cBankDirectory;
class cImportReview;
class cMainModel;
class cQtBankUser;
class cQtHttps;
class cShell;
class QWidget;
struct cBankState;
struct cBookTools;

// The windows of online banking. Nothing of it is made before the first one opens.
class cBankWindows
{
public:
    struct cParts
    {
        const cBookTools& Tools;
        cShell& Shell;
        cMainModel& Model;
        cImportReview& Review;
    };

    explicit cBankWindows(const cParts& parts);
    ~cBankWindows();

    void OpenLogins(QWidget* parent);
    // True when the user wants to look at what came.
    [[nodiscard]] bool OpenFetch(QWidget* parent);

private:
    // The first day to fetch of a new login (null) where the user wished another than usual; else invalid.
    QDate OpenSetup(const cBankState* login, QWidget* parent);
    void OpenLog(const QString& text, const QString& forOthers, QWidget* parent);

    cParts m_parts;
    std::unique_ptr<cQtHttps> m_https;
    std::unique_ptr<cQtBankUser> m_customer;
    std::unique_ptr<cBankDirectory> m_directory;
};
