#pragma once

#include "model/cTemplateItem.h"

#include <QDate>
#include <QString>
#include <QStringList>

#include <optional>

class cAmountFormat;
class cClock;
class cDataAccess;
class cUser;
struct cEntryItem;

// The entry editor without its window: fields as the user sees them, defaults, checks in their order, and saving.
class cEntryEditor
{
public:
    struct cFields
    {
        QString Amount;             // as typed
        bool IsAmountTyped = false; // the user has edited the amount
        QString Description;
        QString Category; // path; empty while none is chosen
        QString Type;     // stored word; empty while none is chosen
        QString Account;
        QString Target; // only for transfers
        QDate Date;     // invalid means today
        bool HasEnd = false;
        QDate End;        // only with HasEnd
        QString Interval; // stored word; empty while none is chosen
    };

    enum class eSaved { Saved, BadAmount, Refused };

    cEntryEditor(cDataAccess& data, cUser& user, const cClock& clock) : m_data(data), m_user(user), m_clock(clock) {}

    // The fields of a new entry, with the account preselected where one is given.
    [[nodiscard]] cFields Start(const QString& account);

    // The fields of an existing entry; empty when there is none with this ID.
    [[nodiscard]] std::optional<cFields> Load(int id);

    [[nodiscard]] bool IsNew() const { return m_id == 0; }

    // Choices in the order in which they are offered.
    [[nodiscard]] QStringList Categories() const;
    [[nodiscard]] QStringList Accounts() const;

    // Takes over what the category proposes: an amount that nobody typed starts at zero again, kind and interval are
    // filled where they are still open.
    void ChooseCategory(const QString& path, cFields& fields) const;

    // Checks the fields in their order, shows the message of the first failure, and stores the entry.
    [[nodiscard]] eSaved Save(const cFields& fields);

private:
    [[nodiscard]] bool Check(const cFields& fields);
    [[nodiscard]] std::optional<cEntryItem> Build(const cFields& fields, qint64 cents) const;
    [[nodiscard]] bool LosesCorrections(const cEntryItem& entry) const;
    [[nodiscard]] bool Change(const cEntryItem& entry);
    [[nodiscard]] bool Refuse(const QString& text);

    cDataAccess& m_data;
    cUser& m_user;
    const cClock& m_clock;
    int m_id = 0; // of the edited entry; 0 for a new one
};
