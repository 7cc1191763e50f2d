#pragma once

#include <QList>
#include <QString>
#include <QStringView>

// A wildcard pattern, compiled once: "*" any run of characters, "?" one character, "#" one digit, "[0-9a]" one
// character of a class, "[!0-9]" one that is not in it. Case counts.
class cWildcard
{
public:
    explicit cWildcard(QStringView pattern);

    // True when the whole text fits the pattern.
    [[nodiscard]] bool Matches(QStringView text) const;

    // True when the pattern holds any wildcard.
    [[nodiscard]] static bool IsPattern(QStringView text);

private:
    enum class eKind { Literal, Any, Run, Digit, Class };
    struct cToken
    {
        eKind Kind = eKind::Literal;
        QChar Literal;
        QString Set; // of a class: pairs of first and last character
        bool IsNegated = false;
    };

    [[nodiscard]] static bool Fits(const cToken& token, QChar c);
    [[nodiscard]] static cToken ReadClass(QStringView content);

    QList<cToken> m_tokens;
};
