#include "import/mt940/modMT940File.h"

#include "base/cText.h"
#include "base/modDate.h"
#include "import/mt940/modMT940.h"
#include "import/mt940/modMT940Repair.h"
#include "import/read/modStatementFile.h"

#include <QStringView>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

// A bank that names what a statement began with mostly names what it ended with. Behind others that do, or within a
// tag, a text without it was cut off; else only some banks write it so.
enum class eTextEnd { Whole, Doubtful, CutOff };

bool IsOneOf(QStringView line, const auto& tags)
{
    return std::any_of(tags.begin(), tags.end(), [&](const char16_t* tag) { return line.startsWith(tag); });
}

// The statement that a text ends with, as far as it is there.
struct cLast
{
    bool IsOpened = false; // by the balance before its transactions
    bool IsClosed = false; // by one behind them
    bool IsHead = false;   // not even begun
};

cLast LastOf(const QString& text)
{
    constexpr std::array heads = {u":20:", u":21:", u":25:", u":28:", u":28C:"};
    constexpr std::array closings = {u":62F:", u":62M:", u":64:", u":65", u":90"};
    cLast last;
    for (const QStringView line : QStringView(text).tokenize(u'\n')) {
        if (line.trimmed() == u"-") {
            last = {};
        } else if (line.startsWith(u':') && line.indexOf(u':', 1) > 0) {
            last.IsHead = IsOneOf(line, heads);
            last.IsOpened = last.IsOpened || line.startsWith(u":60");
            last.IsClosed = last.IsClosed || IsOneOf(line, closings);
        }
    }
    return last;
}

// Most texts show behind their last transaction that they are whole.
bool IsClosedAtEnd(const QString& text)
{
    const QStringView rest = QStringView(text).sliced(qMax<qsizetype>(text.lastIndexOf(u"\n:61:"), 0));
    return (rest.contains(u"\n:62F:") || rest.contains(u"\n:62M:")) && !rest.contains(u"\n:2");
}

eTextEnd EndOf(const QString& text)
{
    if (IsClosedAtEnd(text)) {
        return eTextEnd::Whole;
    }
    const qsizetype start = qMax(text.lastIndexOf(u"\n:20:"), 0);
    const bool isBehindOthers = QStringView(text).first(start).contains(u"\n:62");
    const cLast last = LastOf(modMT940Repair::Repair(text.sliced(start)).Text);
    if (last.IsClosed || !(last.IsOpened || (last.IsHead && isBehindOthers))) {
        return eTextEnd::Whole;
    }
    const QStringView line = QStringView(text).sliced(text.lastIndexOf(u'\n') + 1);
    if (isBehindOthers || (line.startsWith(u':') && line.indexOf(u':', 1) < 0)) {
        return eTextEnd::CutOff;
    }
    // An empty line was written by somebody and not left by a cut.
    return text.endsWith(u"\n\n") || text.endsWith(u"\n\r\n") ? eTextEnd::Whole : eTextEnd::Doubtful;
}

// Whether the balance behind the last transaction has lost digits. Then it is as good as none, but all transactions are
// there.
bool IsBalanceCutOff(QStringView text)
{
    const QStringView line = text.sliced(text.lastIndexOf(u'\n') + 1);
    const qsizetype comma = line.indexOf(u',');
    return line.startsWith(u":62") && (comma < 0 || comma + 3 > line.size());
}

cStatementRead Refused()
{
    cStatementRead read;
    read.Refusal = cText::Tr("Die Datei ist abgeschnitten: Dem letzten Auszug fehlt das Ende. Es wurde nichts "
                             "übernommen. Bitte laden Sie die Datei noch einmal herunter.");
    return read;
}

// As `before` is without its last transaction. False when that gave no row.
bool LeaveOutLast(cStatementRead& read, const cStatementRead& before)
{
    if (read.Entries.size() <= before.Entries.size()) {
        return false;
    }
    const cImportEntry row = read.Entries.takeLast();
    const QString start = u"%1 %2"_s.arg(modDate::ToText(row.ImportDate), row.ImportPurpose.left(40));
    read.Skipped.append({{0, modStatementFile::CutOff(start, false)}, eSkipped::CutOff, row});
    read.Balances = before.Balances;
    return true;
}

} // namespace

cStatementRead modMT940File::Read(const QString& text, const QString& account, eStrayDetails stray)
{
    const eTextEnd end = EndOf(text);
    if (end == eTextEnd::CutOff) {
        return Refused();
    }
    const bool isBalanceCutOff = IsBalanceCutOff(text);
    cStatementRead read = modMT940::Read(isBalanceCutOff ? text.left(text.lastIndexOf(u'\n')) : text, account, stray);
    if (isBalanceCutOff) {
        read.Problems.append({0, cText::Tr("Der Schlusssaldo ist abgeschnitten und wurde nicht übernommen.")});
    }
    if (end == eTextEnd::Doubtful && read.Refusal.isEmpty()) {
        const qsizetype last = qMax(text.lastIndexOf(u"\n:61:"), text.lastIndexOf(u"@@:61:"));
        const cStatementRead before = modMT940::Read(text.first(last + 1), account, stray);
        if (!LeaveOutLast(read, before) && !text.endsWith(u'\n')) {
            return Refused();
        }
    }
    return read;
}
