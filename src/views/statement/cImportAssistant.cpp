#include "views/statement/cImportAssistant.h"

#include "base/cProgress.h"
#include "base/cText.h"
#include "base/cUser.h"
#include "core/cAmountFormat.h"
#include "import/read/cStatementSource.h"
#include "import/read/modAccountNumber.h"
#include "import/read/modStatementFile.h"
#include "import/sheet/modSpreadsheet.h"
#include "import/stage/cAccountMap.h"
#include "import/stage/cImportHiveCache.h"
#include "import/stage/cStatementImport.h"
#include "import/table/cTable.h"
#include "import/table/cTableMemory.h"
#include "import/table/modLayoutFile.h"
#include "import/table/modTableRows.h"
#include "store/cDataAccess.h"
#include "views/common/modFileWrite.h"
#include "views/ledger/modImportText.h"
#include "views/statement/cLayoutTaken.h"
#include "views/statement/modColumnMeaning.h"
#include "views/statement/modImportPreview.h"
#include "views/statement/modTableField.h"

#include <QFileInfo>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype triedText = 500'000; // characters; every change of the user reads them anew
constexpr qsizetype shownLeftOut = 200;

// The beginning of a long text, whole lines.
QString Head(const QString& text)
{
    const qsizetype end = text.size() > triedText ? text.lastIndexOf(u'\n', triedText) : -1;
    return end > 0 ? text.left(end + 1) : text;
}

} // namespace

struct cImportAssistant::cWorks
{
    explicit cWorks(const cStatementSource& source) : Source(source) {}

    cStatementSource Source;
    cStatementSource Tried; // the same, or the beginning of a long text
    eStatementFormat Format = eStatementFormat::Unknown;
    cSpreadsheet Book;
    cTableChoice Choice;
    modTable::cOpened Opened;
    QStringList FileAccounts; // that the file itself names
    QString Proposal;         // for a file that names none
    cImportResult Result;     // of the trial
};

cImportAssistant::cImportAssistant(const cParts& parts, const cStatementSource& source)
    : m_parts(parts),
      m_works(std::make_unique<cWorks>(source))
{
    m_works->Format = modStatementFormat::Detect(source);
    if (m_works->Format == eStatementFormat::Spreadsheet) {
        m_works->Book = modSpreadsheet::Load(source);
    }
    Evaluate();
}

cImportAssistant::~cImportAssistant() = default;

void cImportAssistant::SetPlace(int number, int count)
{
    m_number = number;
    m_count = count;
}

void cImportAssistant::SetReplaced(int rows)
{
    m_replaced = rows;
    Evaluate();
}

QString cImportAssistant::FileText() const
{
    const QString name = QFileInfo(m_works->Source.Name).fileName();
    return m_count == 1
        ? name
        : cText::Tr("{0} (Datei {1} von {2})", {name, QString::number(m_number), QString::number(m_count)});
}

QString cImportAssistant::FormatText() const
{
    const QString name = modStatementFormat::Name(m_works->Format);
    return IsTable() ? cText::Tr("{0} – {1}", {name, modTableField::OriginText(m_works->Opened.Layout)}) : name;
}

bool cImportAssistant::IsTable() const
{
    return modStatementFormat::IsTable(m_works->Format) && m_works->Book.Refusal.isEmpty();
}

bool cImportAssistant::IsOffered(eField field) const
{
    const qsizetype sheets = m_works->Book.Sheets.size();
    switch (field) {
    case eField::Sheet: return IsTable() && sheets > 1;
    case eField::Charset:
    case eField::Separator: return IsTable() && sheets == 0;
    default: return IsTable();
    }
}

QStringList cImportAssistant::Items(eField field) const
{
    if (field == eField::Sheet) {
        QStringList names{
            modTableField::Automatic(m_works->Choice.Sheet.isEmpty() ? m_works->Opened.Sheet : QString())};
        for (const cSheet& sheet : m_works->Book.Sheets) {
            names.append(sheet.Name);
        }
        return names;
    }
    return modTableField::Items(field, m_works->Opened.Layout, modStatementText::CharsetOf(m_works->Source.Bytes));
}

int cImportAssistant::Current(eField field) const
{
    if (field == eField::Sheet) {
        return qMax(0, static_cast<int>(Items(field).indexOf(m_works->Choice.Sheet)));
    }
    return modTableField::Current(field, m_works->Choice, m_works->Opened.Layout);
}

// What was said about columns holds for the lines and cells that were seen then.
void cImportAssistant::Choose(eField field, int item)
{
    if (item < 0 || item == Current(field)) {
        return;
    }
    cTableChoice& choice = m_works->Choice;
    if (field == eField::Sheet) {
        choice.Sheet = item == 0 ? QString() : m_works->Book.Sheets.at(item - 1).Name;
    } else {
        modTableField::Choose(field, item, choice);
    }
    if (field == eField::Sheet || field == eField::Separator || field == eField::Profile) {
        choice.Map.reset();
    }
    if (field == eField::Sheet) {
        choice.HeaderLine.reset();
    }
    if (field == eField::Charset) {
        m_works->Source = modStatementFormat::Source(m_works->Source.Name, m_works->Source.Bytes, choice.Charset);
    }
    Touch();
}

int cImportAssistant::HeaderLine() const
{
    return m_works->Opened.Layout.HeaderRow + 1;
}

int cImportAssistant::LastHeaderLine() const
{
    constexpr int searched = 60;
    return m_works->Opened.Table ? qMin(searched, m_works->Opened.Table->RowCount()) : 0;
}

void cImportAssistant::SetHeaderLine(int line)
{
    if (line == HeaderLine()) {
        return;
    }
    m_works->Choice.HeaderLine = line;
    m_works->Choice.Map.reset();
    Touch();
}

QStringList cImportAssistant::Columns() const
{
    QStringList names = m_works->Opened.Layout.Map.Names;
    qsizetype count = names.size();
    for (const cPreviewRow& row : m_rows) {
        count = qMax(count, row.Cells.size());
    }
    names.resize(count);
    for (qsizetype i = 0; i < count; ++i) {
        if (names.at(i).isEmpty()) {
            names[i] = cText::Tr("Spalte {0}", {QString::number(i + 1)});
        }
    }
    return names;
}

QStringList cImportAssistant::Meanings()
{
    return modColumnMeaning::Names();
}

int cImportAssistant::Meaning(int column) const
{
    return modColumnMeaning::Of(m_works->Opened.Layout.Map, column);
}

void cImportAssistant::SetMeaning(int column, int meaning)
{
    if (meaning < 0 || meaning == Meaning(column)) {
        return;
    }
    cColumnMap map = m_works->Opened.Layout.Map;
    modColumnMeaning::Set(map, column, meaning);
    m_works->Choice.Map = map;
    Touch();
}

bool cImportAssistant::AsksAccount() const
{
    return IsTable() || m_works->Format == eStatementFormat::Qif || m_works->Format == eStatementFormat::Archive;
}

bool cImportAssistant::OffersPayee() const
{
    return m_works->Format == eStatementFormat::Qif || m_works->Format == eStatementFormat::Ofx
        || m_works->Format == eStatementFormat::Archive;
}

QString cImportAssistant::Account() const
{
    if (m_account) {
        return *m_account;
    }
    if (!m_works->FileAccounts.isEmpty()) {
        return m_works->FileAccounts.size() == 1 ? m_works->FileAccounts.first() : QString();
    }
    return m_parts.Memory.Accounts(m_works->Opened.Layout.AccountKey).value(0, m_works->Proposal);
}

QStringList cImportAssistant::Accounts() const
{
    QStringList numbers = m_works->FileAccounts + m_parts.Memory.Accounts(m_works->Opened.Layout.AccountKey);
    for (const auto& [number, account] : m_parts.Accounts.Mapping()) {
        numbers.append(number);
    }
    numbers.append(cImportHive::AccountsOf(m_parts.Hive.GetImportHive().getImportEntryList()));
    const QStringList accounts = m_parts.Accounts.Choices();
    for (const QString& account : accounts) {
        numbers.append(m_parts.Accounts.NumberMeant(account)); // its name, where it has no number
    }
    numbers.removeAll(QString());
    numbers.removeDuplicates();
    return numbers;
}

void cImportAssistant::SetAccount(const QString& number)
{
    const QString meant = m_parts.Accounts.NumberMeant(number);
    if (meant != Account()) {
        m_account = meant;
        Evaluate();
    }
}

QString cImportAssistant::BookAccount(const QString& number) const
{
    return m_parts.Accounts.AccountOf(number);
}

QString cImportAssistant::BankCode() const
{
    if (m_bankCode) {
        return *m_bankCode;
    }
    const QString known = m_parts.Memory.BankCode(m_works->Opened.Layout.AccountKey);
    const QString number = modAccountNumber::Compact(Account());
    constexpr int country = 4; // letters and check digits of an IBAN, before the bank code
    constexpr int length = 8;
    return known.isEmpty() && modAccountNumber::IsGermanIban(number) ? number.mid(country, length) : known;
}

QStringList cImportAssistant::AutomaticTexts()
{
    return {cText::Tr("Die Kontonummer wird automatisch ermittelt."),
            cText::Tr("Die Bankleitzahl wird automatisch ermittelt.")};
}

void cImportAssistant::SetAvoidsDuplicates(bool avoids)
{
    m_avoidsDuplicates = avoids;
    Evaluate();
}

void cImportAssistant::SetUsesPayee(bool uses)
{
    m_usesPayee = uses;
    Evaluate();
}

QString cImportAssistant::DoubtText()
{
    return cText::Tr("{0} Was ist richtig?", {modStatementFile::OpenSign()});
}

QStringList cImportAssistant::Readings() const
{
    const std::optional<cTableDoubt>& doubt = m_works->Opened.Layout.Doubt;
    return doubt ? modImportText::Readings(*doubt, m_parts.Format) : QStringList();
}

int cImportAssistant::Reading() const
{
    const std::optional<eSignRule> sign = m_works->Choice.Sign ? m_works->Choice.Sign : m_works->Result.KnownSign;
    return sign ? static_cast<int>(*sign) : -1;
}

void cImportAssistant::ChooseReading(int reading)
{
    if (reading != Reading()) {
        m_works->Choice.Sign = static_cast<eSignRule>(reading);
        Touch();
    }
}

void cImportAssistant::Reset()
{
    m_works->Choice = {};
    m_works->Source = modStatementFormat::Source(m_works->Source.Name, m_works->Source.Bytes, m_works->Choice.Charset);
    m_isTouched = false;
    Evaluate();
}

bool cImportAssistant::CanSaveLayout() const
{
    return IsTable() && !modLayoutFile::ToText(m_works->Opened.Layout, {}).isEmpty();
}

void cImportAssistant::SaveLayout()
{
    const cTableLayout& layout = m_works->Opened.Layout;
    const QString name = layout.Profile.isEmpty() ? QFileInfo(m_works->Source.Name).completeBaseName() : layout.Profile;
    const QString path = m_parts.User.ChooseSavePath(
        cText::Tr("Aufbau speichern"), cText::Tr("Aufbau einer Tabelle|*.txt|Alle Dateien|*.*"),
        cText::Tr("Aufbau {0}.txt", {QString(name).replace(u'/', u'-')}), ePurpose::Layout);
    if (path.isEmpty()) {
        return;
    }
    const QString fault = modFileWrite::Replace(path, modLayoutFile::ToText(layout, name).toUtf8());
    if (!fault.isEmpty()) {
        m_parts.User.Show(eTone::Exclamation, fault);
    }
}

void cImportAssistant::LoadLayout()
{
    const QString path = m_parts.User
                             .ChooseFiles(cText::Tr("Aufbau laden"),
                                          cText::Tr("Aufbau einer Tabelle|*.txt|Alle Dateien|*.*"), ePurpose::Layout)
                             .value(0);
    if (path.isEmpty()) {
        return;
    }
    const cLayoutTaken taken = cLayoutTaken::File(path, m_parts.Memory);
    if (!taken.Fault.isEmpty()) {
        m_parts.User.Show(eTone::Exclamation, taken.Fault);
        return;
    }
    Reset();
    const bool isOfThis = m_works->Opened.Layout.Key == taken.Key;
    m_parts.User.Show(
        eTone::Information,
        isOfThis ? cText::Tr("Der Aufbau '{0}' gilt nun für diese Datei und alle mit denselben "
                             "Spaltennamen.",
                             {taken.Name})
                 : cText::Tr("Der Aufbau '{0}' ist gemerkt. Diese Datei hat andere Spaltennamen.", {taken.Name}));
}

void cImportAssistant::Touch()
{
    m_isTouched = true;
    Evaluate();
}

// Looks at the table, then lets the import itself say what would come of it.
void cImportAssistant::Evaluate()
{
    cWorks& works = *m_works;
    works.Tried = works.Source;
    if (works.Format == eStatementFormat::Csv) { // all others need their end
        works.Tried.Text = Head(works.Source.Text);
    }
    if (IsTable()) {
        cReadOptions options;
        options.Table = works.Choice;
        options.Memory = works.Choice.Profile.isEmpty() ? &m_parts.Memory : nullptr;
        works.Opened = works.Book.Sheets.isEmpty() ? modTable::Open(works.Tried, options)
                                                   : modSpreadsheet::Open(works.Book, options);
        options.Memory = nullptr; // it would name an account that the file does not
        options.Table.Account.clear();
        const cStatementRead read = modTable::ReadRows(*works.Opened.Table, works.Opened.Layout, options);
        // A further part of the file may name its account where the first one does not.
        works.FileAccounts = read.NeedsAccount ? QStringList() : cImportHive::AccountsOf(read.Entries);
        works.FileAccounts.removeAll(QString());
    }
    cImportOptions options = Options();
    options.Run = eStagingRun::Try;
    if (m_replaced > 0) {
        options.Duplicates = eDuplicateTest::Skip; // they are still there, but will be gone
    }
    cNoProgress progress;
    cStatementImport import(m_parts.Data, m_parts.Hive, &m_parts.Memory);
    works.Result = import.ImportSource(works.Tried, options, progress);
    if (!m_account && options.DefaultAccount.isEmpty() && !works.Result.Unowned.isEmpty()) {
        works.Proposal = m_parts.Accounts.NumberMeant(m_parts.Accounts.ProposalFor(works.Result.Unowned));
        options.DefaultAccount = works.Proposal;
        works.Result = import.ImportSource(works.Tried, options, progress);
    }
    works.Opened.Layout.Sign = works.Result.KnownSign.value_or(works.Opened.Layout.Sign);
    m_rows = IsTable() ? modImportPreview::Rows(works.Opened, m_parts.Format, ShownRows)
                       : modImportPreview::Rows(works.Result.Rows, m_parts.Format, ShownRows);
    Q_EMIT Changed();
}

QString cImportAssistant::CountText() const
{
    if (!CanImport()) {
        return {};
    }
    QString text = modImportPreview::Count(m_works->Result, m_parts.Format);
    if (m_replaced > 0) {
        text = cText::Tr("{0}; ersetzt, was davon noch offen ist", {text});
    }
    return m_works->Tried.Text.size() == m_works->Source.Text.size()
        ? text
        : cText::Tr("{0} (nur der Anfang der großen Datei)", {text});
}

QStringList cImportAssistant::LeftOut() const
{
    return modImportPreview::LeftOut(m_works->Result, m_parts.Format, shownLeftOut);
}

QString cImportAssistant::Problem() const
{
    return m_works->Result.IsRefused ? m_works->Result.Message : QString();
}

bool cImportAssistant::Adopt(const cImportAssistant& other)
{
    const cWorks& from = *other.m_works;
    const cTableLayout& layout = m_works->Opened.Layout;
    if (from.Format != m_works->Format || layout.Key != from.Opened.Layout.Key
        || layout.AccountKey != from.Opened.Layout.AccountKey || (IsTable() && layout.Key.isEmpty())) {
        return false;
    }
    if (m_works->FileAccounts.isEmpty() && m_parts.Memory.Accounts(layout.AccountKey).size() > 1) {
        return false; // files of the kind come from several accounts, and nothing in this one tells from which
    }
    m_avoidsDuplicates = other.m_avoidsDuplicates;
    m_usesPayee = other.m_usesPayee;
    m_works->Choice = from.Choice;
    m_isTouched = other.m_isTouched;
    m_works->Source = modStatementFormat::Source(m_works->Source.Name, m_works->Source.Bytes, m_works->Choice.Charset);
    if (m_works->FileAccounts.isEmpty()) {
        m_account = other.Account();
        m_bankCode = other.BankCode();
    }
    Evaluate();
    return CanImport();
}

const cStatementSource& cImportAssistant::Source() const
{
    return m_works->Source;
}

cImportOptions cImportAssistant::Options() const
{
    cImportOptions options;
    options.Duplicates = m_avoidsDuplicates ? eDuplicateTest::Test : eDuplicateTest::Skip;
    options.MissingPurpose = m_usesPayee ? eMissingPurpose::Name : eMissingPurpose::Empty;
    options.DefaultAccount = Account();
    options.Table = m_works->Choice;
    if (!IsTable()) {
        options.Table = {};
        return options;
    }
    const cTableLayout& layout = m_works->Opened.Layout;
    if (layout.IsReadable() && (m_isTouched || m_works->Tried.Text.size() != m_works->Source.Text.size())) {
        // What was seen is what is read, whatever the rest of the file or the memory would say.
        options.Table.Map = layout.Map;
        options.Table.HeaderLine = layout.HeaderRow + 1;
        options.Table.Number = layout.Number;
        options.Table.Date = layout.Date;
        const bool isOpen = (layout.Doubt || layout.IsSignUsual) && !m_works->Choice.Sign;
        options.Table.Sign = isOpen ? std::nullopt : std::optional<eSignRule>(layout.Sign);
    }
    const bool isOther = m_account && !m_account->isEmpty() && !m_works->FileAccounts.isEmpty()
        && m_works->FileAccounts != QStringList(*m_account);
    options.Table.Account = isOther ? *m_account : QString();
    return options;
}

void cImportAssistant::Remember()
{
    const cTableLayout& layout = m_works->Opened.Layout;
    if (!IsTable() || !CanImport()) {
        return;
    }
    // A known layout says more than a map can keep; it is found again without one. What only the sign was asked for is
    // kept without the columns: those that are empty in this file would be missing from the map for good.
    const cTableChoice& choice = m_works->Choice;
    const bool isOnlySign = (layout.Doubt || (layout.IsSignUsual && !choice.Sign)) && layout.Origin == eMapOrigin::Words
        && !choice.HeaderLine && !choice.Number && !choice.Date && choice.Profile.isEmpty()
        && choice.Charset == eCharset::Detect;
    if (!isOnlySign && (m_isTouched || layout.Origin != eMapOrigin::Profile)) {
        (void)modTable::Remember(m_works->Source, m_works->Choice, layout, m_parts.Memory);
    }
    (void)m_parts.Memory.SaveAccount(layout.AccountKey, Account());
    if (!BankCode().isEmpty()) {
        (void)m_parts.Memory.SaveBankCode(layout.AccountKey, BankCode());
    }
}
