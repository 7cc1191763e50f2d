#pragma once

#include "base/cUser.h"
#include "model/cEntryItem.h"
#include "views/entry/cEntryDraft.h"
#include "views/entry/cEntryFields.h"
#include "views/entry/cEntrySuggestions.h"

#include <QDate>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

struct cBookTools;
struct cEntryWrite;

// The entry editor without its window: three faces, fields as the user sees them, defaults, checks in their order, and
// saving. Every saving is one step that can be undone.
class cEntryEditor
{
public:
    using cFields = cEntryFields;
    using eSaved = eEntrySaved;

    // What a series comes to.
    struct cPreview
    {
        bool IsSeries = false;
        int Count = 0;     // 0: without end
        QList<QDate> Next; // up to three days from today on
        QString Text;      // both for the user: "12 Mal, nächste Termine: 01.04.2026, 01.05.2026, 01.06.2026"
    };

    explicit cEntryEditor(const cBookTools& tools);

    // The fields of a new entry on the account that is given, else on that of the newest entry.
    [[nodiscard]] cFields Start(const QString& account);

    // The fields of a new entry as it is proposed for a bank transaction. `onStored` gets the ID of the first entry
    // that is stored, within its step; when it is false, nothing is stored.
    using fnStored = std::function<bool(int entryId)>;
    [[nodiscard]] cFields StartFrom(const cEntryItem& proposal, fnStored onStored);

    // The start-balance face for an account, filled with what is stored; empty account: the first one.
    [[nodiscard]] cFields StartBalance(const QString& account);

    // The fields of an existing entry; empty when there is none with this ID. A part of a split purchase opens the
    // whole group in the split face, a start balance its own face.
    [[nodiscard]] std::optional<cFields> Load(int id);

    // The fields of a series for changing it from the occurrence on this day. Saving ends the old series the day before
    // and adds a new one. For the first occurrence and for one-off entries the same as Load.
    [[nodiscard]] std::optional<cFields> LoadFrom(int id, QDate day);

    // What is typed, with what it belongs to; without the time.
    [[nodiscard]] cEntryDraft Draft(const cFields& fields) const;
    // Opens the entry that a draft belongs to and gives its fields as they are stored; what was typed goes over them.
    // Where the entry is gone, the user is told, and the draft becomes one of a new entry.
    [[nodiscard]] cFields Resume(cEntryDraft& draft);

    // The day from which typed distances such as "+7" count.
    [[nodiscard]] QDate Today() const;

    // Whether anything was typed since `shown`; the empty table of a split is no text.
    [[nodiscard]] static bool IsTyped(const cFields& shown, const cFields& now);
    [[nodiscard]] eAnswer AskToSave() const; // see modUnsaved

    [[nodiscard]] bool IsNew() const { return m_ids.isEmpty(); }
    [[nodiscard]] QString Title(const cFields& fields) const; // of the window
    [[nodiscard]] QString AmountLabel() const; // "Betrag ({0}):" with the currency's symbol, if it has one
    [[nodiscard]] eDecimal Decimal() const;    // how amounts are typed and shown
    // How much VAT the amount includes, where the category knows its rate: "darin 19 % MwSt.: 15,97 €". Else empty.
    [[nodiscard]] QString VatText(const cFields& fields) const;
    // What is said above the start-balance face: that there is none yet, or which one there is.
    [[nodiscard]] QString StartBalanceText(const QString& account) const;

    // Choices in the order in which they are offered.
    [[nodiscard]] QStringList Payers(const cFields& fields) const; // who may have paid; empty in a book without people
    [[nodiscard]] QStringList Accounts() const;
    // Earlier descriptions and the search in the categories; loaded when first asked.
    [[nodiscard]] cEntrySuggestions& Suggestions() { return m_suggestions; }

    // Takes over what the category proposes: an amount that nobody typed starts at zero again, or at the category's
    // value where that recurs; kind and interval are filled where they are still open. What an earlier category brought
    // is open, and so is what came over from the entry before: it goes when this category brings something else or
    // nothing.
    void ChooseCategory(const QString& path, cFields& fields) const;
    // A picked proposal brings the category (while none is chosen) and the account (unless the user chose one) of its
    // latest use. Any other text is just the description.
    void ChooseDescription(const QString& text, cFields& fields);
    // The same as ChooseCategory and ChooseDescription for a row of the split table; a row that does not exist is
    // passed over. Kind and interval of the whole follow the first part whose category brings one.
    void ChoosePartCategory(qsizetype row, const QString& path, cFields& fields) const;
    // Asks whether the text shall become the part's category; it stands there in any case.
    void OfferPartCategory(qsizetype row, const QString& typed, cFields& fields);
    void ChoosePartDescription(qsizetype row, const QString& text, cFields& fields);
    // In the start-balance face, shows what is stored for the account, unless an amount was typed.
    void ChooseAccount(const QString& account, cFields& fields) const;

    // The kind that the user has chosen; empty while what stands there is open.
    [[nodiscard]] static QString ChosenType(const cFields& fields);
    // The target account and its label are there only for a transfer.
    [[nodiscard]] static bool ShowsTarget(const cFields& fields);
    // First and last day, count and next days are there only for a series.
    [[nodiscard]] static bool ShowsSeries(const cFields& fields);
    // Corrections can be listed: an existing series in the normal face.
    [[nodiscard]] bool ShowsCorrections(const cFields& fields) const;

    // Receipts that are to hang at the entry once it is saved.
    [[nodiscard]] QList<cReceiptSource> ChooseReceipts() const;          // lets the user choose files
    [[nodiscard]] QString ReceiptText(const cEntryFields& fields) const; // "2 Belege, 1 neu"

    // Turns the entry into a split one: what is there becomes the first part. Refused, with a message, for transfers
    // and for series with corrections, whose amounts would be right for no part; the face then stays.
    void UseSplit(cFields& fields) const;
    // Turns a split entry into a plain one with the first part's category and description. Asks when several parts are
    // there. False when it stays split.
    [[nodiscard]] bool UseNormal(cFields& fields) const;

    [[nodiscard]] cPreview Preview(const cFields& fields) const;
    // The last day with which the series takes place so often; invalid when it cannot.
    [[nodiscard]] QDate EndAfter(const cFields& fields, int count) const;

    // Checks the fields in their order, shows the message of the first failure, and stores the entry. A text that names
    // no category yet becomes one if the user agrees.
    [[nodiscard]] eSaved Save(cFields fields);
    [[nodiscard]] int FailedPart() const { return m_failedPart; } // the row that BadPart or a missing category is about
    // Of the entry, or of the parts of a purchase in the order in which they are filled; the first of them.
    [[nodiscard]] const QList<int>& SavedIds() const { return m_savedIds; }
    [[nodiscard]] int SavedId() const { return m_savedIds.value(0); }

    // The fields for the next new entry after one was saved: face, date, account and kind stay. The kind counts as
    // open, so that the next category brings its own.
    [[nodiscard]] cFields Next(const cFields& saved);
    // What was saved since the editor was opened, newest first, at most five.
    [[nodiscard]] const QStringList& LastSaved() const { return m_lastSaved; }

private:
    [[nodiscard]] cFields FieldsOf(const cEntryItem& entry) const;
    [[nodiscard]] static QString EndedText(const cEntryItem& series, const QString& count);
    [[nodiscard]] eSaved Store(const cFields& fields);
    [[nodiscard]] eSaved SaveStartBalance(const cFields& fields);
    [[nodiscard]] std::optional<cEntryItem> Whole(const cFields& fields) const;
    [[nodiscard]] QList<cEntryWrite> Build(const cFields& fields) const;
    [[nodiscard]] cEntryItemFixModList CorrectionsOf(const cEntryItem& stored, const cFields& fields) const;
    [[nodiscard]] bool HasCorrections(const cFields& fields) const;
    void KeepReceipts(QList<cEntryWrite>& rows, const QList<int>& removed) const;
    [[nodiscard]] QString StepName(const cEntryItem& entry, int kept) const;
    void Remember(const QList<cEntryWrite>& rows);
    [[nodiscard]] QString ProposedAccount() const;

    const cBookTools& m_tools;
    cEntrySuggestions m_suggestions;
    QList<int> m_ids;    // rows that are edited: one, or the parts of a group; empty for a new entry
    QDate m_from;        // a series is changed from this occurrence on; invalid for the whole
    fnStored m_onStored; // until the first entry is stored
    int m_failedPart = -1;
    QList<int> m_savedIds;
    QStringList m_lastSaved;
};
