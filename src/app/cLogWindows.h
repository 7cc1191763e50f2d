#pragma once

#include "core/cErrorLog.h"

#include <QString>

class cBook;
class cBookFlow;
class cConfiguration;
class cErrorLogView;
class cShell;
class QWidget;
struct cBookTools;

// The error log with what belongs to it: its window, feedback, and what is said after a run that broke off.
class cLogWindows
{
public:
    struct cParts
    {
        cErrorLog& Log;
        const cBookTools& Tools;
        cShell& Shell;
        const cConfiguration& Configuration;
        const cBook& Book;
    };

    explicit cLogWindows(const cParts& parts) : m_parts(parts) {}

    void OpenLog(QWidget* parent) const;
    void SendFeedback() const;

    // Says that the last run was not ended properly, where that is so, and does what the user wants to do about it.
    void TellBroken(cBookFlow& books, QWidget* parent) const;

private:
    [[nodiscard]] QString Diagnosis() const;

    cParts m_parts;
};
