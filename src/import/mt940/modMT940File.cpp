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

// A bank that names what a statement began with also names what it ended with. Where that is missing, the text was cut
// off; only some other banks write it so, and then no line is left without its end.
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

eTextEnd EndOf(const QString& text)
{
    const qsizetype start = qMax(text.lastIndexOf(u"\n:20:"), 0);
    const bool isBehindOthers = QStringView(text).first(start).contains(u"\n:62");
    const cLast last = LastOf(modMT940Repair::Repair(text.sliced(start)).Text);
    if (last.IsClosed || !(last.IsOpened || (last.IsHead && isBehindOthers))) {
        return eTextEnd::Whole;
    }
    if (isBehindOthers || !text.endsWith(u'\n')) {
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

} // namespace

cStatementRead modMT940File::Read(const QString& text, const QString& account, eStrayDetails stray)
{
    cStatementRead read;
    const eTextEnd end = EndOf(text);
    if (end == eTextEnd::CutOff) {
        read.Refusal = cText::Tr("Die Datei ist abgeschnitten: Dem letzten Auszug fehlt das Ende. Es wurde nichts "
                                 "übernommen. Bitte laden Sie die Datei noch einmal herunter.");
        return read;
    }
    const bool isBalanceCutOff = IsBalanceCutOff(text);
    read = modMT940::Read(isBalanceCutOff ? text.left(text.lastIndexOf(u'\n')) : text, account, stray);
    if (isBalanceCutOff) {
        read.Problems.append({0, cText::Tr("Der Schlusssaldo ist abgeschnitten und wurde nicht übernommen.")});
    }
    if (end == eTextEnd::Doubtful && !read.Entries.isEmpty()) {
        const cImportEntry row = read.Entries.takeLast();
        read.Skipped.append(
            {{0, modStatementFile::CutOff(u"%1 %2"_s.arg(modDate::ToText(row.ImportDate), row.ImportPurpose.left(40)))},
             eSkipped::CutOff,
             row});
    }
    return read;
}
