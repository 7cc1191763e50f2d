#pragma once

#include <QByteArrayView>
#include <QList>
#include <QString>

#include <optional>

// Reads texts out of a record of a binary workbook and the records that continue it.
class cXlsText
{
public:
    explicit cXlsText(const QList<QByteArrayView>& parts) : m_parts(parts) {}

    // A text behind its length and flags. Empty optional when the records end before it does.
    [[nodiscard]] std::optional<QString> Read(int lengthSize = 2);

    // An unsigned number of so many bytes; 0 behind the end.
    quint32 Number(int size);

    void Skip(qsizetype count);

    [[nodiscard]] bool IsAtEnd() const { return m_part >= m_parts.size(); }

private:
    uchar Byte();
    void GoOn();

    QList<QByteArrayView> m_parts;
    qsizetype m_part = 0;
    qsizetype m_at = 0;
};
