#pragma once

#include <QByteArray>
#include <QString>

// A statement file as it was found.
struct cStatementSource
{
    QString Name; // file name, with or without its folder
    QByteArray Bytes;
    QString Text; // the decoded bytes; empty when they are no text (a packed file, a spreadsheet)
};
