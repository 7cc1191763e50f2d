#pragma once

#include <QString>

// What the text of a setting means. A list joins several values, in a way of its own.
enum class eSettingType { Text, Truth, Number, Day, List };

// What a setting is about, and so who reads and writes it.
enum class eSettingOwner {
    View,   // what the user looks at
    Window, // places, columns, groups
    Book,   // what belongs to the book itself, as its password or the accounts of the bank
    Program // what has to be known before a book is open; lies in the registry
};

// What a reset makes of a setting.
enum class eSettingReset {
    Cleared,    // removed by a reset of all settings
    Layout,     // removed by the reset of the view as well
    SwitchedOn, // a view switch, which a reset of all settings turns on
    Kept        // outlives every reset
};

struct cSettingFacts
{
    eSettingType Type;
    eSettingOwner Owner;
    eSettingReset Reset = eSettingReset::Cleared;
    QString Default{}; // what counts while nothing is stored; empty where that depends on more than the setting
};

// The name under which a setting is stored, with what is known about it. Keys are made in modSettingKey only: no text
// turns into one, so that a name with a slip of the pen does not compile instead of losing a setting.
class cSettingKey
{
public:
    explicit cSettingKey(const QString& name, const cSettingFacts& facts) : m_name(name), m_facts(facts) {}

    [[nodiscard]] const QString& Name() const { return m_name; }
    [[nodiscard]] const cSettingFacts& Facts() const { return m_facts; }
    [[nodiscard]] const QString& Default() const { return m_facts.Default; }

    bool operator==(const cSettingKey& other) const { return m_name == other.m_name; }

private:
    QString m_name;
    cSettingFacts m_facts;
};

// Settings of one kind whose names have a variable part between a fixed head and a fixed tail, either of which may be
// missing: one for each bank account, say.
class cSettingFamily
{
public:
    cSettingFamily(const QString& head, const QString& tail, const cSettingFacts& facts)
        : m_head(head),
          m_tail(tail),
          m_facts(facts)
    {
    }

    [[nodiscard]] cSettingKey Of(const QString& part) const { return cSettingKey(m_head + part + m_tail, m_facts); }

    // True for a stored name that can be of this family; letter case does not count.
    [[nodiscard]] bool Holds(const QString& name) const;
    // The variable part of a stored name; empty when the name is of another kind.
    [[nodiscard]] QString PartOf(const QString& name) const;

    [[nodiscard]] const cSettingFacts& Facts() const { return m_facts; }

private:
    QString m_head;
    QString m_tail;
    cSettingFacts m_facts;
};
