#pragma once

#include "views/statement/modImportPreview.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

class cAccountMap;
class cAmountFormat;
class cDataAccess;
class cImportHiveCache;
class cTableMemory;
class cUser;
struct cImportOptions;
struct cStatementSource;

// How one statement file is to be read, decided by the user: what the file looks like, what each column of a table
// means and which account it belongs to. Every change is tried at once, so that the user sees what would come of it.
class cImportAssistant final : public QObject
{
    Q_OBJECT

public:
    // What it works with; all of it outlives the assistant.
    struct cParts
    {
        cDataAccess& Data;
        const cAmountFormat& Format;
        cImportHiveCache& Hive;
        cAccountMap& Accounts;
        cTableMemory& Memory;
        cUser& User;
    };

    // Choices out of a fixed list.
    enum class eField { Profile, Sheet, Charset, Separator, Number, Date, Sign };

    static constexpr int ShownRows = 10;

    cImportAssistant(const cParts& parts, const cStatementSource& source);
    ~cImportAssistant() override;

    // Where the file stands among those that are read with it.
    void SetPlace(int number, int count);
    // How many transactions of an earlier reading of the file this one is to replace.
    void SetReplaced(int rows);

    [[nodiscard]] QString FileText() const;   // "umsaetze.csv (Datei 2 von 5)"
    [[nodiscard]] QString FormatText() const; // the format, and how its columns were found
    [[nodiscard]] bool IsTable() const;

    // The choices; a field that does not apply to the file is not offered.
    [[nodiscard]] bool IsOffered(eField field) const;
    [[nodiscard]] QStringList Items(eField field) const;
    [[nodiscard]] int Current(eField field) const;
    void Choose(eField field, int item);

    // The line with the names of the columns, counted from 1; 0: there is none.
    [[nodiscard]] int HeaderLine() const;
    [[nodiscard]] int LastHeaderLine() const; // that can be chosen
    void SetHeaderLine(int line);

    // The columns of a table and what they mean; 0 is a column that is not read.
    [[nodiscard]] QStringList Columns() const;
    [[nodiscard]] static QStringList Meanings();
    [[nodiscard]] int Meaning(int column) const;
    void SetMeaning(int column, int meaning);

    // Formats that always name their account are not asked for one.
    [[nodiscard]] bool AsksAccount() const;
    [[nodiscard]] QString Account() const;
    [[nodiscard]] QStringList Accounts() const; // to choose from: remembered, staged and mapped ones
    void SetAccount(const QString& number);
    [[nodiscard]] QString BookAccount(const QString& number) const; // where its transactions go, if that is known
    [[nodiscard]] QString BankCode() const;
    void SetBankCode(const QString& bankCode) { m_bankCode = bankCode.simplified(); }
    [[nodiscard]] static QStringList AutomaticTexts(); // in the place of both

    [[nodiscard]] bool AvoidsDuplicates() const { return m_avoidsDuplicates; }
    void SetAvoidsDuplicates(bool avoids);
    // The payee in the place of a missing purpose, in the formats where banks leave it out.
    [[nodiscard]] bool OffersPayee() const;
    [[nodiscard]] bool UsesPayee() const { return m_usesPayee; }
    void SetUsesPayee(bool uses);

    // What the file leaves open: one of its bookings in two readings. No readings: nothing is open.
    [[nodiscard]] static QString DoubtText();
    [[nodiscard]] QStringList Readings() const;
    [[nodiscard]] int Reading() const; // the chosen one; -1: none yet
    void ChooseReading(int reading);

    // Forgets what was chosen about the table.
    void Reset();
    // The layout of the table as a small file for others; only where the columns have names.
    [[nodiscard]] bool CanSaveLayout() const;
    void SaveLayout();
    // Takes such a file; it counts for this file too when that has the same columns. The user is told what came of it.
    void LoadLayout();

    [[nodiscard]] const QList<cPreviewRow>& Rows() const { return m_rows; } // the first ones
    [[nodiscard]] QString CountText() const;                                // what would be taken
    [[nodiscard]] QStringList LeftOut() const;                              // what would not, with line and reason
    [[nodiscard]] QString Problem() const;                                  // why nothing can be read; else empty
    [[nodiscard]] bool CanImport() const { return Problem().isEmpty(); }

    // Files of one kind are asked about once: true when the other's answers hold for this file too, which has then
    // taken them.
    [[nodiscard]] bool Adopt(const cImportAssistant& other);
    [[nodiscard]] const cStatementSource& Source() const;
    [[nodiscard]] cImportOptions Options() const;
    // Keeps layout, account and bank code for the next file of the kind.
    void Remember();

Q_SIGNALS:
    void Changed(); // anything that is shown

private:
    struct cWorks; // the tools of the import floor

    void Touch();
    void Evaluate();

    cParts m_parts;
    std::unique_ptr<cWorks> m_works;
    int m_number = 1;
    int m_count = 1;
    int m_replaced = 0;
    bool m_isTouched = false; // the user chose something about the table
    bool m_avoidsDuplicates = true;
    bool m_usesPayee = true;
    std::optional<QString> m_account; // as typed
    std::optional<QString> m_bankCode;
    QList<cPreviewRow> m_rows;
};
