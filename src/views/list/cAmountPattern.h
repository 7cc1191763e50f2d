#pragma once

#include <QString>

class cAmountFormat;

// Amounts as cAmountFormat writes them, but folded for searching and without asking the locale for each: what stands
// around and between the digits is learnt from one example. A format that does not repeat itself (other groups, say)
// is recognised and asked every time.
class cAmountPattern
{
public:
    explicit cAmountPattern(const cAmountFormat& format);

    // Replaces `text`.
    void Write(qint64 cents, QString& text) const;

    // The word as it would stand in an amount without groups, since "1234,50" is what the amount fields show.
    [[nodiscard]] static QString Ungrouped(QString word) { return word.remove(u'\'').remove(u'\u2019'); }
    // A text of Write without what separates groups.
    [[nodiscard]] QString WithoutGroups(QString amount) const { return amount.remove(m_group); }

    // False when no amount can hold this folded word, because one of its characters never occurs in them.
    [[nodiscard]] bool MayHold(const QString& word) const;

private:
    struct cFrame
    {
        QString Front;
        QString Back;
    };

    [[nodiscard]] bool Learn();
    void WriteLearnt(qint64 cents, QString& text) const;
    [[nodiscard]] QString Asked(qint64 cents) const;

    const cAmountFormat& m_format;
    cFrame m_positive;
    cFrame m_negative;
    QString m_group;
    QString m_decimal;
    bool m_isLearnt;
};
