#include "import/mt940/modMT940Repair.h"

#include <QStringView>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype wrapWidth = 60; // lines are wrapped at 65 characters; some banks count a little differently

constexpr std::array knownTags = {u":13:",  u":13D:", u":20:",  u":21:",  u":25:",  u":25P:", u":28:",
                                  u":28C:", u":34F:", u":60F:", u":60M:", u":61:",  u":62F:", u":62M:",
                                  u":64:",  u":65:",  u":86:",  u":90C:", u":90D:", u":NS:"};

struct cLine
{
    QStringView Content;
    QStringView End; // line break as it stands; empty at the end of the text
    int Number = 0;
};

bool HasKnownTag(QStringView line)
{
    return line.size() >= 4 && line.front() == u':'
        && std::any_of(knownTags.begin(), knownTags.end(), [&](const char16_t* tag) {
               return line[1] == tag[1] && line[2] == tag[2] && line.startsWith(tag); // mostly seen at once
           });
}

// True when "@@" stands where line breaks should: more tags follow on it than on real line breaks.
bool HasAtSignBreaks(const QString& text)
{
    const QStringView view = text;
    const auto isTag = [&](qsizetype at) { return HasKnownTag(view.mid(at, 5)); };
    int atSigns = 0;
    // One character is found many times faster than two.
    for (qsizetype at = view.indexOf(u'@'); at >= 0; at = view.indexOf(u'@', at + 1)) {
        if (view.mid(at + 1).startsWith(u'@')) {
            ++at;
            atSigns += isTag(at + 1) ? 1 : 0;
        }
    }
    if (atSigns == 0) {
        return false;
    }
    int breaks = 0;
    for (qsizetype at = text.indexOf(u'\n'); at >= 0; at = text.indexOf(u'\n', at + 1)) {
        breaks += isTag(at + 1) ? 1 : 0;
    }
    return atSigns > breaks;
}

// The line at the place, which is moved behind it.
cLine TakeLine(QStringView text, qsizetype& from, int number)
{
    const qsizetype feed = text.indexOf(u'\n', from);
    const qsizetype next = feed < 0 ? text.size() : feed + 1;
    qsizetype end = feed < 0 ? text.size() : feed;
    end -= end > from && feed >= 0 && text[end - 1] == u'\r' ? 1 : 0;
    const cLine line{text.mid(from, end - from), text.mid(end, next - end), number};
    from = next;
    return line;
}

QStringView WithoutControls(QStringView line)
{
    while (!line.isEmpty() && line.front() < u' ') {
        line = line.mid(1);
    }
    while (!line.isEmpty() && line.back() < u' ') {
        line.chop(1);
    }
    return line;
}

// "{1:..." to "{5:...": the envelope around the statement. Braces are not allowed inside a statement.
bool IsEnvelope(QStringView line)
{
    return line.size() >= 3 && line[0] == u'{' && line[1] >= u'1' && line[1] <= u'5' && line[2] == u':';
}

// Whether a text is only looked at, up to the first line that has to be changed.
enum class eRepair { Look, Change };

class cRepair
{
public:
    cRepair(QStringView text, eRepair repair) : m_text(text), m_repair(repair) {}

    // True when something had or has to be changed.
    bool Run()
    {
        qsizetype from = 0;
        for (int number = 1; from < m_text.size() && !IsDone(); ++number) {
            Take(TakeLine(m_text, from, number));
        }
        return m_isChanged;
    }

    [[nodiscard]] modMT940Repair::cRepaired Result() const
    {
        modMT940Repair::cRepaired repaired;
        for (const cLine& line : m_kept) {
            repaired.Text += line.Content;
            repaired.Text += line.End;
        }
        repaired.Lines = m_starts;
        return repaired;
    }

private:
    [[nodiscard]] bool IsDone() const { return m_isChanged && m_repair == eRepair::Look; }

    // To be asked before any change.
    bool BeginChange()
    {
        m_isChanged = true;
        return m_repair == eRepair::Change;
    }

    void Take(const cLine& line)
    {
        const QStringView bare = WithoutControls(line.Content);
        if (IsEnvelope(bare)) {
            EndStatement();
            TakeEnvelope(line, bare);
        } else if (IsDash(bare, line.Content)) {
            EndStatement();
            Replace(line, u"-");
        } else if (m_lastWidth >= wrapWidth && line.Content.startsWith(u':') && !HasKnownTag(line.Content)) {
            Join(line);
        } else if (!IsOfStatement(line)) {
            Separate(line);
            Keep(line);
        } else if (BeginChange()) {
            Keep({u"", line.End, line.Number});
        }
    }

    // The end of a statement as it may not stand: with the brace of an envelope or with controls.
    [[nodiscard]] static bool IsDash(QStringView bare, QStringView content)
    {
        return bare.startsWith(u'-') && (bare.startsWith(u"-}") || (bare.size() == 1 && content.trimmed().size() != 1));
    }

    // Details behind the closing balance tell of the statement (its sums), not of the last transaction in it. Where it
    // has none they stay: the reader refuses them.
    [[nodiscard]] bool IsOfStatement(const cLine& line)
    {
        const QStringView tag = line.Content.left(4);
        if (!line.Content.startsWith(u':')) {
            if (line.Content.trimmed() == u"-") {
                EndStatement();
            }
        } else if (tag == u":20:") {
            EndStatement();
        } else {
            m_hasTransaction = m_hasTransaction || tag == u":61:";
            m_isClosed = tag != u":61:" && (m_isClosed || IsClosing(tag));
            m_isDropping = tag == u":86:" && m_isClosed && m_hasTransaction;
        }
        return m_isDropping; // with the lines that go on with it
    }

    // Closing balances; MT942 has sums in their place.
    static bool IsClosing(QStringView tag)
    {
        return tag == u":62F" || tag == u":62M" || tag == u":90D" || tag == u":90C";
    }

    void EndStatement()
    {
        m_hasTransaction = false;
        m_isClosed = false;
        m_isDropping = false;
    }

    // The envelope goes; a tag behind its last opening stays.
    void TakeEnvelope(const cLine& line, QStringView bare)
    {
        if (!BeginChange()) {
            return;
        }
        const qsizetype block = bare.indexOf(u"{4:");
        const QStringView rest = block < 0 ? QStringView() : bare.mid(block + 3);
        if (HasKnownTag(rest)) {
            const cLine inner{rest, line.End, line.Number};
            Separate(inner);
            Keep(inner);
        }
    }

    void Replace(const cLine& line, QStringView content)
    {
        if (BeginChange()) {
            Keep({content, line.End, line.Number});
        }
    }

    void Join(const cLine& line)
    {
        if (!BeginChange()) {
            return;
        }
        m_kept.last().End = {};
        m_kept.append(line);
        m_lastWidth = line.Content.size();
    }

    // A ":20:" begins a statement. Where nothing stands before it, or text that would swallow the separator, one is
    // added.
    void Separate(const cLine& line)
    {
        if (line.Content.startsWith(u":20:") && m_hasTag && !m_isSeparated && BeginChange()) {
            Keep({u"-", m_kept.last().End, line.Number});
        }
        m_hasTag = m_hasTag || HasKnownTag(line.Content);
    }

    void Keep(const cLine& line)
    {
        if (m_repair == eRepair::Change) {
            m_kept.append(line);
            m_starts.append(line.Number);
        }
        m_lastWidth = line.Content.size();
        if (const QStringView bare = line.Content.trimmed(); !bare.isEmpty()) {
            m_isSeparated = bare == u"-";
        }
    }

    QStringView m_text;
    eRepair m_repair;
    QList<cLine> m_kept;
    QList<int> m_starts; // numbers of the lines that begin a line of the result
    qsizetype m_lastWidth = 0;
    bool m_hasTag = false;
    bool m_isSeparated = false;
    bool m_isChanged = false;
    bool m_hasTransaction = false; // the statement
    bool m_isClosed = false;       // its closing balance has come
    bool m_isDropping = false;     // details of the statement
};

} // namespace

modMT940Repair::cRepaired modMT940Repair::Repair(const QString& text)
{
    const bool hasAtSigns = HasAtSignBreaks(text);
    const QString broken = hasAtSigns ? QString(text).replace(u"@@"_s, u"\r\n"_s) : text;
    if (!cRepair(broken, eRepair::Look).Run()) {
        return {broken, {}};
    }
    cRepair repair(broken, eRepair::Change);
    repair.Run();
    return repair.Result();
}
