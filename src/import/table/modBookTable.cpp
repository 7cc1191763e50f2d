#include "import/table/modBookTable.h"

#include "base/cText.h"
#include "import/cell/modTableValue.h"
#include "import/read/cTableLayout.h"
#include "import/read/modBookRow.h"
#include "import/table/cTable.h"
#include "model/modWord.h"

#include <algorithm>
#include <array>
#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

namespace {

// From the target on only where a row has one
enum eColumn { Day, Kind, Category, Account, Description, Amount, Target, Payer, Count };

// A book may change its language between a file and the next. What English calls them has to be known without its
// catalogue.
struct cWord
{
    const char* German;
    const char* English;
};

constexpr std::array<cWord, Count> titles{{{"Datum", "Date"},
                                           {"Buchungsart", "Entry type"},
                                           {"Kategorie", "Category"},
                                           {"Konto", "Account"},
                                           {"Beschreibung", "Description"},
                                           {"Betrag", "Amount"},
                                           {"Zielkonto", "Target account"},
                                           {"Bezahlt von", "Paid by"}}};
constexpr std::array kinds{cWord{"Einnahme", "Income"}, cWord{"Ausgabe", "Expense"}, cWord{"Umbuchung", "Transfer"}};

// The stored word for a kind of entry; other texts as they are.
QString KindOf(const QString& text)
{
    const auto* const kind = std::find_if(kinds.begin(), kinds.end(),
                                          [&](const cWord& word) { return text == QLatin1StringView(word.English); });
    return kind == kinds.end() ? modWord::EntryTypes().ToStored(text) : QString::fromUtf8(kind->German);
}

using cColumns = std::array<qsizetype, Count>;

cColumns ColumnsOf(const cTable& table, const cTableLayout& layout)
{
    const QStringList names =
        layout.HeaderRow < 0 || layout.HeaderRow >= table.RowCount() ? QStringList() : table.Row(layout.HeaderRow);
    cColumns columns{};
    std::transform(titles.begin(), titles.end(), columns.begin(), [&](const cWord& title) {
        return std::max({names.indexOf(QString::fromUtf8(title.German)),
                         names.indexOf(QString::fromUtf8(title.English)), names.indexOf(cText::Tr(title.German))});
    });
    return columns;
}

// Table programs are kept from calculating a text by an apostrophe before it.
QString WithoutMark(const QString& text)
{
    return text.size() > 1 && text.front() == u'\'' && u"=+-@"_s.contains(text.at(1)) ? text.mid(1) : text;
}

// Banks may call their columns so, and then have kinds of their own. A word that somebody has changed decides nothing.
bool HasOurKinds(const cTable& table, int firstRow, int column)
{
    int ours = 0;
    int others = 0;
    for (int row = firstRow; row < table.RowCount(); ++row) {
        const QString kind = table.Cell(row, column).toString();
        if (!kind.isEmpty()) {
            ++(modWord::EntryTypes().Contains(KindOf(kind)) ? ours : others);
        }
    }
    return ours >= others;
}

class cReader
{
public:
    cReader(const cTable& table, const cTableLayout& layout)
        : m_table(table),
          m_layout(layout),
          m_columns(ColumnsOf(table, layout))
    {
        m_read.IsTable = true;
        m_read.IsBook = true;
    }

    cStatementRead Run()
    {
        for (int row = m_layout.FirstRow; row < m_table.RowCount(); ++row) {
            Take(row);
        }
        return std::move(m_read);
    }

private:
    [[nodiscard]] QString Cell(int row, eColumn column) const
    {
        const qsizetype place = m_columns.at(column);
        return place < 0 ? QString() : WithoutMark(m_table.Cell(row, static_cast<int>(place)).toString());
    }

    void Take(int row)
    {
        cImportEntry entry;
        entry.ImportDate = modTableValue::ReadDate(Cell(row, Day));
        entry.ImportAccount = Cell(row, Account);
        if (!entry.ImportDate.isValid() && entry.ImportAccount.isEmpty()) {
            return;
        }
        const std::optional<qint64> value = modTableValue::ReadCents(Cell(row, Amount), eNumberFormat::German);
        TakeDescription(Cell(row, Description), entry);
        entry.ImportValue = value.value_or(0);
        const QString kind = KindOf(Cell(row, Kind));
        const bool isTransfer = kind == modWord::Umbuchung;
        if (!entry.ImportDate.isValid() || !value || entry.ImportAccount.isEmpty()
            || !modWord::EntryTypes().Contains(kind) || (isTransfer && Cell(row, Target).isEmpty())) {
            const QString text = cText::Tr("In der Zeile fehlen Tag, Buchungsart, Konto, Zielkonto oder Betrag.");
            m_read.Skipped.append({{m_table.Line(row), text}, eSkipped::Unreadable, {}});
        } else if (isTransfer) {
            TakeTransfer(row, entry);
        } else {
            entry.ImportType = modBookRow::CategoryText(Cell(row, Category));
            modBookRow::AddPayer(entry, Cell(row, Payer));
            m_read.Entries.append(entry);
        }
    }

    // The list of one account has the transfer as that account sees it.
    void TakeTransfer(int row, cImportEntry entry)
    {
        cImportEntry other = entry;
        other.ImportAccount = Cell(row, Target);
        other.ImportValue = std::abs(entry.ImportValue);
        entry.ImportValue = -other.ImportValue;
        modBookRow::MakeTransfer(entry, other.ImportAccount, Cell(row, Category));
        modBookRow::MakeTransfer(other, entry.ImportAccount, Cell(row, Category));
        modBookRow::AddPayer(entry, Cell(row, Payer));
        modBookRow::AddPayer(other, Cell(row, Payer));
        m_read.Entries.append({entry, other});
    }

    // Entries of bank transactions are described by the payee and the purpose. Staging takes apostrophes out of names
    // only, so a text that has one in the name's place is a purpose as a whole.
    static void TakeDescription(const QString& text, cImportEntry& entry)
    {
        const qsizetype dash = text.indexOf(u" - "_s);
        const QString name = text.left(dash);
        if (name.contains(u'\'')) {
            entry.ImportPurpose = text;
            return;
        }
        entry.ImportBeneficiary = name;
        entry.ImportPurpose = dash < 0 ? QString() : text.mid(dash + 3);
    }

    const cTable& m_table;
    const cTableLayout& m_layout;
    cColumns m_columns;
    cStatementRead m_read;
};

} // namespace

bool modBookTable::IsBook(const cTable& table, const cTableLayout& layout)
{
    const cColumns columns = ColumnsOf(table, layout);
    return std::find(columns.begin(), columns.begin() + Target, -1) == columns.begin() + Target
        && HasOurKinds(table, layout.FirstRow, static_cast<int>(columns.at(Kind)));
}

cStatementRead modBookTable::Read(const cTable& table, const cTableLayout& layout)
{
    return cReader(table, layout).Run();
}
