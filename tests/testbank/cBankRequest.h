#pragma once

#include <QByteArray>
#include <QList>
#include <QStringList>

// A segment of a request, as a bank reads it. Elements are wire text, the head is none of them.
struct cRequestSegment
{
    QByteArray Code;
    int Number = 0;
    int Version = 0;
    QList<QByteArray> Elements;

    [[nodiscard]] QByteArray At(int place) const { return Elements.value(place - 1); } // from 1
    [[nodiscard]] QList<QByteArray> Group(int place) const;
};

// A request taken apart and checked by rules of its own; it shares nothing with the code that wrote it.
struct cBankRequest
{
    QStringList Faults; // what is wrong with it
    QByteArray Protocol;
    QByteArray DialogId;
    int Number = 0;
    QByteArray Profile;  // "PIN:1", "PIN:2"
    QByteArray Function; // security function
    QByteArray SystemId;
    QByteArray Pin;
    QByteArray Tan;
    QList<cRequestSegment> Business;

    [[nodiscard]] static cBankRequest Read(const QByteArray& message);
    // The first of this code; an empty one when there is none.
    [[nodiscard]] cRequestSegment Of(const QByteArray& code) const;
    // What is asked for: the code of the first business segment, and "HKTAN2" or "HKTANS".
    [[nodiscard]] QByteArray Step() const;

    // Cuts at a separator that is neither escaped nor in binary data.
    [[nodiscard]] static QList<QByteArray> Cut(const QByteArray& wire, char separator);
    [[nodiscard]] static QByteArray Plain(const QByteArray& wire); // without escapes
};
