#include "import/qif/modQif.h"

#include "base/cText.h"
#include "base/modAmount.h"
#include "base/modChar.h"
#include "import/read/modBookRow.h"
#include "import/read/modStatementFile.h"
#include "model/modWord.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <numeric>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QDate noDate = QDate::fromJulianDay(2086668); // 1001-01-01
constexpr int headLines = 50;                           // lines among which a header must stand

enum class eSection { None, Bank, Account, Other };

// A part of a transaction that went to several categories.
struct cPart
{
    QString Category;
    QString Memo;
    QString Amount;
};

struct cRecord
{
    QString Account;
    QString Date;
    QString Amount;
    QString Payee;
    QString Memo;
    QString Category;
    QList<cPart> Parts;
    int Line = 0;          // of its first field; 0: no field yet
    bool IsCutOff = false; // by the end of the file
};

// A date as its three numbers in the order of the file.
struct cParts
{
    int First = 0;
    int Second = 0;
    int Third = 0;
    bool HasPoint = false;
    bool HasStroke = false;
    bool IsYearFirst = false;
    bool IsNewCentury = false; // "'" before the year stands for 2000
};

// The text up to the line break, which is taken off `rest`.
QStringView TakeLine(QStringView& rest)
{
    const qsizetype feed = rest.indexOf(u'\n');
    const QStringView line = feed < 0 ? rest : rest.left(feed);
    rest = feed < 0 ? QStringView() : rest.mid(feed + 1);
    return line.trimmed();
}

bool StartsWith(QStringView line, QLatin1StringView start)
{
    return line.startsWith(start, Qt::CaseInsensitive);
}

// Switches such as "!Option:AutoSwitch" leave the section as it is.
eSection SectionOf(QStringView header, eSection current)
{
    if (StartsWith(header, "!account"_L1)) {
        return eSection::Account;
    }
    if (!StartsWith(header, "!type:"_L1)) {
        return current;
    }
    constexpr std::array banks = {"bank"_L1, "ccard"_L1, "cash"_L1, "oth a"_L1, "oth l"_L1};
    const QStringView type = header.mid(6).trimmed();
    const bool isBank = std::any_of(banks.begin(), banks.end(), [&](auto bank) { return StartsWith(type, bank); });
    return isBank ? eSection::Bank : eSection::Other;
}

cPart& LastPart(cRecord& record)
{
    if (record.Parts.isEmpty()) {
        record.Parts.append(cPart());
    }
    return record.Parts.last();
}

void TakeField(cRecord& record, QChar letter, const QString& value)
{
    switch (letter.toUpper().unicode()) {
    case u'D': record.Date = record.Date.isEmpty() ? value : record.Date; break; // splits may have dates of their own
    case u'T': record.Amount = value; break;
    case u'U':
        record.Amount = record.Amount.isEmpty() ? value : record.Amount;
        break; // the same again, by newer programs
    case u'P': record.Payee = value; break;
    case u'M': record.Memo = value; break;
    case u'L': record.Category = value; break;
    case u'S': record.Parts.append({value, {}, {}}); break;
    case u'E': LastPart(record).Memo = value; break;
    case u'$': LastPart(record).Amount = value; break;
    default: break;
    }
}

class cWalk
{
public:
    QList<cRecord> Run(QStringView text)
    {
        const bool isOpenEnded = !text.endsWith(u'\n');
        for (int number = 1; !text.isEmpty() && m_records.size() <= cStatementRead::mostEntries; ++number) {
            const QStringView line = TakeLine(text);
            if (line.startsWith(u'!')) {
                EndRecord();
                m_section = SectionOf(line, m_section);
            } else if (line.startsWith(u'^')) {
                EndRecord();
            } else if (!line.isEmpty()) {
                Take(line.front(), line.mid(1).trimmed().toString(), number);
            }
        }
        m_record.IsCutOff = !m_records.isEmpty() && (isOpenEnded || LacksField());
        EndRecord(); // the last "^" is often missing
        return std::move(m_records);
    }

private:
    void Take(QChar letter, const QString& value, int number)
    {
        if (m_section == eSection::Account && letter.toUpper() == u'N') {
            m_account = value;
        } else if (m_section == eSection::Bank) {
            m_record.Line = m_record.Line == 0 ? number : m_record.Line;
            TakeField(m_record, letter, value);
        }
    }

    // Amount, payee or memo, where all before have it.
    [[nodiscard]] bool LacksField() const
    {
        constexpr std::array fields = {&cRecord::Amount, &cRecord::Payee, &cRecord::Memo};
        return std::any_of(fields.begin(), fields.end(), [&](QString cRecord::*field) {
            const auto has = [&](const cRecord& record) { return !(record.*field).isEmpty(); };
            return !has(m_record) && std::all_of(m_records.begin(), m_records.end(), has);
        });
    }

    void EndRecord()
    {
        if (m_record.Line > 0) {
            m_record.Account = m_account;
            m_records.append(m_record);
        }
        m_record = {};
    }

    QList<cRecord> m_records;
    cRecord m_record;
    QString m_account; // name of the account whose transactions follow
    eSection m_section = eSection::None;
};

// "6/ 1'94", "29.12.2010", "2017-12-22"; empty when there are no three numbers.
std::optional<cParts> PartsOf(const QString& date)
{
    std::array<int, 3> numbers{};
    std::size_t count = 0;
    qsizetype digits = 0; // of the number at hand
    cParts parts;
    for (const QChar c : date) {
        if (modChar::IsDigit(c)) {
            count += digits == 0 ? 1 : 0;
            if (count > numbers.size() || ++digits > 4) {
                return std::nullopt;
            }
            numbers.at(count - 1) = numbers.at(count - 1) * 10 + (c.unicode() - u'0');
            parts.IsYearFirst = parts.IsYearFirst || (count == 1 && digits == 4);
        } else if (c != u' ') {
            parts.HasPoint = parts.HasPoint || c == u'.';
            parts.HasStroke = parts.HasStroke || c == u'/';
            parts.IsNewCentury = parts.IsNewCentury || c == u'\'';
            digits = 0;
        }
    }
    parts.First = numbers[0];
    parts.Second = numbers[1];
    parts.Third = numbers[2];
    return count == 3 ? std::optional(parts) : std::nullopt;
}

int FullYear(const cParts& parts)
{
    if (parts.Third >= 100) {
        return parts.Third;
    }
    // The format is older than the century: years without "'" reach back.
    return parts.Third + (parts.IsNewCentury || parts.Third < 70 ? 2000 : 1900);
}

QDate DateOf(const QString& text, eDateOrder order)
{
    const std::optional<cParts> parts = PartsOf(text);
    QDate date;
    if (parts && (parts->IsYearFirst || order == eDateOrder::YearMonthDay)) {
        date = QDate(parts->First, parts->Second, parts->Third);
    } else if (parts) {
        const bool isDayFirst = order == eDateOrder::DayMonthYear;
        date = QDate(FullYear(*parts), isDayFirst ? parts->Second : parts->First,
                     isDayFirst ? parts->First : parts->Second);
    }
    return date.isValid() ? date : noDate;
}

// What the days and amounts of a file tell of the order in which its days are written.
struct cEvidence
{
    int DayFirst = 0;
    int MonthFirst = 0;
    bool HasPoint = false;
    bool IsForeign = false;
    bool IsOpen = false; // another order would give other days
};

void Weigh(const cParts& parts, cEvidence& evidence)
{
    evidence.IsForeign = evidence.IsForeign || (parts.HasStroke && parts.IsNewCentury);
    evidence.DayFirst += parts.First > 12 ? 1 : 0;
    evidence.MonthFirst += parts.Second > 12 ? 1 : 0;
    evidence.HasPoint = evidence.HasPoint || parts.HasPoint;
    evidence.IsOpen = evidence.IsOpen || parts.First != parts.Second;
}

struct cOrder
{
    eDateOrder Order = eDateOrder::DayMonthYear;
    bool IsGuessed = false; // and another order would give other days
};

// "-1,010.50": no German program groups like this.
bool IsGroupedEnglish(const QString& amount)
{
    const qsizetype comma = amount.indexOf(u',');
    return comma >= 0 && amount.indexOf(u'.', comma) > comma;
}

// A part above 12 decides. Where the days leave it open, the day comes first, as it does here, unless the file shows
// that it comes from where the month does: by the years of "6/ 1'94", by the groups of its amounts.
cOrder OrderOf(const QList<cRecord>& records)
{
    cEvidence evidence;
    for (const cRecord& record : records) {
        const std::optional<cParts> parts = PartsOf(record.Date);
        evidence.IsForeign = evidence.IsForeign || IsGroupedEnglish(record.Amount);
        if (parts && !parts->IsYearFirst) {
            Weigh(*parts, evidence);
        }
    }
    if (evidence.DayFirst != evidence.MonthFirst) {
        return {evidence.DayFirst > evidence.MonthFirst ? eDateOrder::DayMonthYear : eDateOrder::MonthDayYear, false};
    }
    const bool isMonthFirst = evidence.IsForeign && !evidence.HasPoint;
    return {isMonthFirst ? eDateOrder::MonthDayYear : eDateOrder::DayMonthYear, evidence.IsOpen && !evidence.HasPoint};
}

// English numbers; a single comma that does not stand before three digits is a decimal comma all the same.
QString ToGerman(const QString& amount)
{
    const qsizetype point = amount.lastIndexOf(u'.');
    const qsizetype comma = amount.lastIndexOf(u',');
    const bool isCommaDecimal = comma > point && amount.count(u',') == 1 && (point >= 0 || amount.size() - comma != 4);
    QString german = amount;
    if (isCommaDecimal) {
        return german;
    }
    const bool isGrouping = amount.count(u'.') > 1;
    return german.remove(u',').replace(u'.', isGrouping ? QString() : u","_s);
}

// The parts' texts, each once.
QString Joined(const QList<cPart>& parts, QString cPart::*text)
{
    QStringList texts;
    for (const cPart& part : parts) {
        texts.append(part.*text);
    }
    texts.removeAll(QString());
    texts.removeDuplicates();
    return texts.join(u", "_s);
}

// The account of "[Girokonto]"; empty for the name of a category.
QString AccountIn(const QString& category)
{
    const qsizetype end = category.startsWith(u'[') ? category.indexOf(u']') : -1;
    return end < 0 ? QString() : category.mid(1, end - 1).trimmed();
}

// What stands behind it: a class, unless the book that wrote the file has put the category there.
QString ClassOf(const QString& transfer)
{
    return transfer.mid(transfer.indexOf(u']') + 1).section(u'/', 1, 1);
}

// Of a file that lists no accounts, the first record tells which one it is about: what this held in the beginning.
QString AccountByOpening(const QList<cRecord>& records)
{
    constexpr std::array<QStringView, 5> words = {u"opening", u"eröffnung", u"anfangs", u"startguthaben",
                                                  u"startsaldo"};
    const cRecord first = records.value(0);
    const bool isOpening = std::any_of(words.begin(), words.end(), [&](QStringView word) {
        return first.Account.isEmpty() && first.Payee.contains(word, Qt::CaseInsensitive);
    });
    return isOpening ? AccountIn(first.Category) : QString();
}

class cReader
{
public:
    cReader(QList<cRecord> records, const cReadOptions& options) : m_records(std::move(records)), m_options(options)
    {
        const QString opened = AccountByOpening(m_records);
        for (cRecord& record : m_records) {
            record.Account = record.Account.isEmpty() ? opened : record.Account;
        }
        const cOrder order = OrderOf(m_records);
        m_order = options.Table.Date.value_or(order.Order);
        if (order.IsGuessed && !options.Table.Date) {
            m_read.Problems.append({0, Guess()});
        }
        m_hasSeveralAccounts = std::any_of(m_records.begin(), m_records.end(), [&](const cRecord& record) {
            return record.Account != m_records.first().Account;
        });
    }

    cStatementRead Run()
    {
        for (const cRecord& record : std::as_const(m_records)) {
            Take(record);
        }
        return std::move(m_read);
    }

private:
    [[nodiscard]] QString Guess() const
    {
        return m_order == eDateOrder::MonthDayYear
            ? cText::Tr("Die Datei lässt offen, ob der Tag oder der Monat vorn steht. Gelesen wurde der Monat zuerst.")
            : cText::Tr("Die Datei lässt offen, ob der Tag oder der Monat vorn steht. Gelesen wurde der Tag zuerst.");
    }

    [[nodiscard]] std::optional<qint64> CentsOf(const QString& amount) const
    {
        const bool isGerman = m_options.Table.Number == eNumberFormat::German;
        return modAmount::CentsFromGerman(isGerman ? amount : ToGerman(amount));
    }

    // Empty when one of them is none, or when they are not all of the record.
    [[nodiscard]] QList<qint64> CentsOfParts(const cRecord& record) const
    {
        QList<qint64> cents;
        qint64 sum = 0;
        bool isAll = true;
        for (const cPart& part : record.Parts) {
            const std::optional<qint64> value = CentsOf(part.Amount);
            cents.append(value.value_or(0));
            sum += cents.constLast();
            isAll = isAll && value;
        }
        isAll = isAll && (record.Amount.isEmpty() || CentsOf(record.Amount) == sum);
        return isAll ? cents : QList<qint64>();
    }

    // The file knows accounts by the names that their owner gave them. The number of the user comes first, unless there
    // are several accounts to tell apart.
    [[nodiscard]] QString AccountOf(const cRecord& record) const
    {
        const bool isNamed = m_hasSeveralAccounts || m_options.Account.isEmpty();
        return isNamed && !record.Account.isEmpty() ? record.Account : m_options.Account;
    }

    void Take(const cRecord& record)
    {
        if (record.IsCutOff) {
            const QString start = QString(record.Date + u' ' + record.Payee).left(60);
            m_read.Skipped.append({{record.Line, modStatementFile::CutOff(start, true)}, eSkipped::CutOff, {}});
            return;
        }
        const QList<qint64> parts = CentsOfParts(record);
        if (parts.size() > 1) {
            NoteWhole(record, parts);
        }
        for (qsizetype i = 0; i < parts.size(); ++i) {
            const cPart& part = record.Parts.at(i);
            Add(record, part.Category, part.Memo.isEmpty() ? record.Memo : part.Memo, parts.at(i));
        }
        if (parts.isEmpty()) {
            TakeWhole(record);
        }
        if (m_read.Entries.constLast().ImportDate == noDate) {
            Report(record.Line, cText::Tr("Das Buchungsdatum ist kein Datum: {0}", {record.Date.left(40)}));
        }
    }

    // As version 0.1.0 staged it.
    void NoteWhole(const cRecord& record, const QList<qint64>& parts)
    {
        QStringList memos;
        for (const cPart& part : record.Parts) {
            memos.append(part.Memo);
        }
        memos.removeAll(QString());
        Add(record, {}, record.Memo.isEmpty() ? memos.join(u", "_s) : record.Memo,
            std::accumulate(parts.begin(), parts.end(), qint64{0}));
        const cImportEntry whole = m_read.Entries.takeLast();
        m_read.Wholes.append({m_read.Entries.size(), parts.size(), whole});
    }

    void TakeWhole(const cRecord& record)
    {
        const std::optional<qint64> cents = CentsOf(record.Amount);
        const QString memo = record.Memo.isEmpty() ? Joined(record.Parts, &cPart::Memo) : record.Memo;
        const bool hasOnePart = record.Parts.size() == 1 && !record.Parts.first().Category.isEmpty();
        const QString category = hasOnePart ? record.Parts.first().Category : record.Category;
        Add(record, record.Parts.size() > 1 ? QString() : category, memo, cents.value_or(0));
        if (!cents) {
            Report(record.Line, cText::Tr("Der Betrag ist keine Zahl: {0}", {record.Amount.left(40)}));
        } else if (record.Parts.size() > 1) {
            m_read.Entries.last().ImportType = Joined(record.Parts, &cPart::Category);
        }
        if (cents && !record.Parts.isEmpty() && (record.Parts.size() > 1 || CentsOf(record.Parts.first().Amount))) {
            Report(record.Line, cText::Tr("Die Teile der Buchung ergeben nicht ihren Betrag; sie bleibt ein Umsatz."));
        }
    }

    void Add(const cRecord& record, const QString& category, const QString& memo, qint64 cents)
    {
        cImportEntry entry;
        entry.ImportAccount = AccountOf(record);
        entry.ImportDate = DateOf(record.Date, m_order);
        entry.ImportPurpose = memo;
        entry.ImportBeneficiary = record.Payee;
        entry.ImportValue = cents;
        if (entry.ImportPurpose.isEmpty() && m_options.MissingPurpose == eMissingPurpose::Name) {
            entry.ImportPurpose = record.Payee;
        }
        TakeCategory(category, record.Account, entry);
        m_read.NeedsAccount = m_read.NeedsAccount || entry.ImportAccount.isEmpty();
        m_read.Entries.append(entry);
    }

    // What leads from an account to itself is what it held in the beginning.
    void TakeCategory(const QString& category, const QString& own, cImportEntry& entry)
    {
        const QString other = AccountIn(category);
        if (other.isEmpty()) {
            entry.ImportType = modBookRow::CategoryText(modBookRow::PathOf(category));
        } else if (other == own || other == entry.ImportAccount) {
            entry.ImportType = modBookRow::CategoryText(modWord::Startguthaben);
        } else {
            modBookRow::MakeTransfer(entry, other, modBookRow::PathOf(ClassOf(category)));
        }
        m_read.IsBook = m_read.IsBook || !entry.ImportType.isEmpty();
    }

    void Report(int line, const QString& text) { m_read.Problems.append({line, text}); }

    QList<cRecord> m_records;
    const cReadOptions& m_options;
    cStatementRead m_read;
    eDateOrder m_order = eDateOrder::DayMonthYear;
    bool m_hasSeveralAccounts = false;
};

} // namespace

bool modQif::IsQif(const QString& text)
{
    QStringView rest = text;
    for (int i = 0; i < headLines && !rest.isEmpty(); ++i) {
        const QStringView line = TakeLine(rest);
        if (StartsWith(line, "!type:"_L1) || StartsWith(line, "!account"_L1) || StartsWith(line, "!option:"_L1)) {
            return true;
        }
    }
    return false;
}

cStatementRead modQif::Read(const cStatementSource& source, const cReadOptions& options)
{
    QList<cRecord> records = cWalk().Run(source.Text);
    return records.size() > cStatementRead::mostEntries ? cStatementRead::TooMany()
                                                        : cReader(std::move(records), options).Run();
}
