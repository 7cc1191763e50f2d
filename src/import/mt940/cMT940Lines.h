#pragma once

#include <QString>
#include <QStringView>

namespace modMT940Repair {
struct cRepaired;
}

// Walks over the lines of a statement text. Lines without tag belong to the nearest line before them; empty lines are
// gone.
class cMT940Lines
{
public:
    // The text outlives the walk.
    explicit cMT940Lines(const modMT940Repair::cRepaired& repaired);

    // False at the end.
    bool Next();

    // True for the line between two statements.
    [[nodiscard]] bool IsSeparator() const;

    QStringView Text; // the line with its continuation lines; valid until the next one
    int Number = 0;   // in the file, from 1

private:
    void Take();
    void LookAhead();
    [[nodiscard]] qsizetype EndOfLine();

    const modMT940Repair::cRepaired& m_repaired;
    QStringView m_rest;
    QStringView m_next; // the line behind the present one
    int m_feeds = 0;    // inside of it, where lines end in CR and LF
    int m_nextNumber = 0;
    QString m_joined; // the present line when it is made of several
    bool m_isDos;     // lines end in CR and LF
    bool m_isFirst = true;
    bool m_isLast = false;
    bool m_isAtEnd = false;
};
