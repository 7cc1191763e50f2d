#pragma once

#include <QString>

// Texts that come back in transaction after transaction are kept once.
class cRepeatedText
{
public:
    // The same text, in the memory of the one before where the two are equal. Valid until the next call.
    [[nodiscard]] const QString& Of(const QString& text)
    {
        if (text != m_text) {
            m_text = text;
        }
        return m_text;
    }

private:
    QString m_text;
};
