#include "base/cText.h"
#include "base/modAmount.h"
#include "base/modDate.h"
#include "model/modWord.h"
#include "views/export/modExport.h"

#include <QHash>

using namespace Qt::Literals::StringLiterals;

// The Quicken Interchange Format as its published description ("QIF file format", the technical note that Intuit gave
// out with the program) has it: lines of a letter and a value, "^" ends a record, "!" lines say what follows.
//
// D  day as dd.MM.yyyy: a German reader expects it, and the points tell others that the day comes first
// T  amount with a decimal point and without grouping, which every reader understands; its sign is the account's view
// P  description, L  category with its levels joined by ":", M  what else the list says about the entry
//
// A transfer names the other account in brackets, with its category behind it as a class, and stands in the section of
// each account that is exported, with opposite signs: that is how the format keeps every account complete by itself,
// and how readers recognise the pair.

namespace {

using cRow = cEntryExtract::cRow;

// A value fills one line.
QString OneLine(const QString& text)
{
    return text.simplified();
}

// ":" divides levels and "/" a class, so neither may stand in a name; brackets around it would make it an account.
QString CategoryText(const QString& path)
{
    QStringList levels = path.split(u"; "_s, Qt::SkipEmptyParts);
    for (QString& level : levels) {
        level = OneLine(level).replace(u':', u'-').replace(u'/', u'-').replace(u'[', u'(').replace(u']', u')');
    }
    return levels.join(u':');
}

QString AccountText(const QString& account)
{
    const QString name = OneLine(account).replace(u'[', u'(').replace(u']', u')');
    return name.isEmpty() ? cText::Tr("Keine Angabe") : name;
}

QString Memo(const cEntryItem& entry)
{
    QStringList parts;
    if (entry.EntryInterval != modWord::Einmalig) {
        parts.append(modWord::Intervals().ToShown(entry.EntryInterval));
    }
    parts.append(OneLine(entry.CorrectionComment));
    parts.removeAll(QString());
    return parts.join(u", "_s);
}

QByteArray Line(char letter, const QString& value)
{
    return value.isEmpty() ? QByteArray() : QByteArray(1, letter) + value.toUtf8() + '\n';
}

QString TransferText(const QString& other, const QString& path)
{
    const QString category = CategoryText(path);
    return u'[' + AccountText(other) + u']' + (category.isEmpty() ? QString() : u'/' + category);
}

// The entry as the account sees it.
QByteArray Record(const cEntryItem& entry, const QString& account)
{
    const bool isTransfer = entry.IsTransfer();
    const bool comesIn = isTransfer ? entry.EntryAccountMove == account : entry.EntryType == modWord::Einnahme;
    const QString& other = comesIn ? entry.EntryAccount : entry.EntryAccountMove;
    return Line('D', modDate::ToGerman(entry.EntryDate))
        + Line('T', modAmount::CentsToText(comesIn ? entry.EntryValue : -entry.EntryValue))
        + Line('P', OneLine(entry.EntryDescription)) + Line('M', Memo(entry))
        + Line('L', isTransfer ? TransferText(other, entry.EntryCategory) : CategoryText(entry.EntryCategory)) + "^\n";
}

// Records by account, the accounts in the order in which they come up.
class cSections
{
public:
    void Add(const cEntryItem& entry, const QString& account)
    {
        if (!m_records.contains(account)) {
            m_order.append(account);
        }
        m_records[account] += Record(entry, account);
    }

    // A list of one account begins like the statement of a bank, because the reader asks for the account anyway and
    // many of them look for that first line. Several accounts are each introduced by name.
    [[nodiscard]] QByteArray Text() const
    {
        if (m_order.size() < 2) {
            return "!Type:Bank\n" + m_records.value(m_order.value(0));
        }
        QByteArray text;
        for (const QString& account : m_order) {
            text +=
                "!Account\n" + Line('N', AccountText(account)) + "TBank\n^\n!Type:Bank\n" + m_records.value(account);
        }
        return text;
    }

private:
    QStringList m_order;
    QHash<QString, QByteArray> m_records;
};

} // namespace

modExport::cResult modExport::Qif(const cJob& job)
{
    const QString& only = job.Extract.Account;
    cSections sections;
    const bool isDone = ForEachRow(job, [&](qsizetype /*position*/, const cRow& row) {
        const cEntryItem& entry = row.Entry;
        QStringList accounts{entry.EntryAccount};
        if (entry.IsTransfer() && entry.EntryAccountMove != entry.EntryAccount) {
            accounts.append(entry.EntryAccountMove);
        }
        for (const QString& account : accounts) {
            if (only.isEmpty() || account == only) {
                sections.Add(entry, account);
            }
        }
    });
    return isDone ? cResult{sections.Text(), {}} : cResult{};
}
