#pragma once

#include <QDate>
#include <QString>
#include <QStringList>

// A JSON object written member by member. Amounts are numbers with exactly two decimal places, which a general writer
// would shorten.
class cJsonObject
{
public:
    cJsonObject& Text(const QString& name, const QString& value);
    cJsonObject& Number(const QString& name, qint64 value);
    cJsonObject& Amount(const QString& name, qint64 cents);
    cJsonObject& Date(const QString& name, QDate date); // "yyyy-mm-dd"; empty text for an invalid date
    cJsonObject& Truth(const QString& name, bool value);
    cJsonObject& Raw(const QString& name, const QString& json);

    [[nodiscard]] QString ToString() const { return u'{' + m_members.join(QStringLiteral(", ")) + u'}'; }

private:
    QStringList m_members;
};

namespace modJson {

// The text in quotes with all that JSON does not allow escaped.
[[nodiscard]] QString Quoted(const QString& text);

// An array, one element a line.
[[nodiscard]] QString Array(const QStringList& elements);

} // namespace modJson
