#include "import/propose/cWildcard.h"

cWildcard::cWildcard(QStringView pattern)
{
    for (qsizetype i = 0; i < pattern.size(); ++i) {
        const QChar c = pattern[i];
        const qsizetype close = c == u'[' ? pattern.indexOf(u']', i + 1) : -1;
        if (close >= 0) {
            m_tokens.append(ReadClass(pattern.mid(i + 1, close - i - 1)));
            i = close;
        } else if (c == u'*') {
            m_tokens.append({eKind::Run, c, {}, false});
        } else if (c == u'?') {
            m_tokens.append({eKind::Any, c, {}, false});
        } else if (c == u'#') {
            m_tokens.append({eKind::Digit, c, {}, false});
        } else {
            m_tokens.append({eKind::Literal, c, {}, false});
        }
    }
}

bool cWildcard::IsPattern(QStringView text)
{
    return text.contains(u'*') || text.contains(u'?') || text.contains(u'#') || text.contains(u'[');
}

cWildcard::cToken cWildcard::ReadClass(QStringView content)
{
    cToken token{eKind::Class, {}, {}, content.size() > 1 && content.startsWith(u'!')};
    content = content.mid(token.IsNegated ? 1 : 0);
    for (qsizetype i = 0; i < content.size(); ++i) {
        const bool isRange = i + 2 < content.size() && content[i + 1] == u'-';
        token.Set.append(content[i]);
        token.Set.append(isRange ? content[i + 2] : content[i]);
        i += isRange ? 2 : 0;
    }
    return token;
}

bool cWildcard::Fits(const cToken& token, QChar c)
{
    switch (token.Kind) {
    case eKind::Literal: return token.Literal == c;
    case eKind::Any: return true;
    case eKind::Digit: return c >= u'0' && c <= u'9';
    case eKind::Run: return false;
    case eKind::Class: break;
    }
    bool isIn = false;
    for (qsizetype i = 0; i + 1 < token.Set.size(); i += 2) {
        isIn = isIn || (token.Set[i] <= c && c <= token.Set[i + 1]);
    }
    return isIn != token.IsNegated;
}

bool cWildcard::Matches(QStringView text) const
{
    qsizetype token = 0;
    qsizetype at = 0;
    qsizetype run = -1; // the last "*" passed, and where it was tried to end
    qsizetype runEnd = 0;
    while (at < text.size()) {
        if (token < m_tokens.size() && m_tokens.at(token).Kind == eKind::Run) {
            run = token++;
            runEnd = at;
        } else if (token < m_tokens.size() && Fits(m_tokens.at(token), text[at])) {
            ++token;
            ++at;
        } else if (run >= 0) {
            token = run + 1;
            at = ++runEnd;
        } else {
            return false;
        }
    }
    while (token < m_tokens.size() && m_tokens.at(token).Kind == eKind::Run) {
        ++token;
    }
    return token == m_tokens.size();
}
