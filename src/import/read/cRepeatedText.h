#pragma once

#include <QString>
#include <QStringView>

// Texts that come back in transaction after transaction are kept once.
class cRepeatedText
{
public:
    // The same text, in the memory of the one before where the two are equal. Valid until the next call.
    [[nodiscard]] const QString& Of(const QString& text) { return text == m_text ? m_text : m_text = text; }
    [[nodiscard]] const QString& Of(QStringView text) { return text == m_text ? m_text : m_text = text.toString(); }

private:
    QString m_text;
};
