#pragma once

#include <QList>
#include <QString>

// What the directory of banks knows about one bank code.
struct cBankInfo
{
    QString Code; // 8 digits
    QString Bic;  // 11 characters; empty when the code has none
    QString Name;
    QString City; // of the head office; empty when unknown
    QString Url;  // of the server for PIN and TAN, https only; empty when unknown

    bool operator==(const cBankInfo&) const = default;
};

using cBankInfoList = QList<cBankInfo>;
