#pragma once

#include <QByteArrayView>
#include <QString>

#include <array>

// What is known of each kind of segment: its versions and the order of its data elements.
namespace modSegmentTable {

// What a log that others read says of an element.
enum class eTold {
    Never,  // hidden
    Person, // hidden, and in every other place too
    Words,  // a text of the bank, with numbers hidden
    Open,
};

struct cElement
{
    const char* Name = nullptr;
    const char* Label = nullptr; // in the debug description; elements without one are not described
    eTold Told = eTold::Never;
};

constexpr int mostElements = 12;

struct cRow
{
    const char* Code = nullptr;
    int Version300 = 0; // that is written; 0 for segments that only the bank writes or that come in several versions
    int Version220 = 0;
    int From = 1; // the lowest version with this order of elements
    const char* Title = nullptr;
    std::array<cElement, mostElements> Elements{}; // behind the last one come more of its kind
};

// Null for an unknown segment.
[[nodiscard]] const cRow* Find(QByteArrayView code, int version);
// The version that is written with "300" or another protocol.
[[nodiscard]] int Version(QByteArrayView code, QStringView protocol);
// The place of an element behind the head, from 1; 0 when this version has none of the name.
[[nodiscard]] int Place(QByteArrayView code, int version, QByteArrayView name);
// What may be told of the element in a place.
[[nodiscard]] eTold Told(QByteArrayView code, int version, int place);

} // namespace modSegmentTable
