#pragma once

#include <QDate>
#include <QMap>
#include <QString>

#include <optional>

class cDataAccess;
class cSettingKey;

// The settings of the open database in memory, kept in step with table `setting`, also when a step that wrote some is
// taken back. Stored names are compared without regard to case. On a database opened for reading only, changes live
// until the program ends.
class cSettings
{
public:
    explicit cSettings(cDataAccess& data);

    // Reads the table again, after another database was opened.
    void Reload();

    [[nodiscard]] QString Get(const cSettingKey& key) const; // empty when nothing is stored
    // False when the table could not be read: what looks like nothing stored may be anything.
    [[nodiscard]] bool IsRead() const;
    // False, and unchanged in memory, when the database refuses.
    bool Set(const cSettingKey& key, const QString& value);
    bool Delete(const cSettingKey& key);

    // Truth values of the settings; see ToBool. The default of the key, where nothing is stored: the five view switches
    // are on until somebody switches them off.
    [[nodiscard]] bool GetBool(const cSettingKey& key) const;
    bool SetBool(const cSettingKey& key, bool value);

    // Removes every setting that does not have to outlive a reset, then applies the view defaults.
    void ResetAll();
    // The five view switches on.
    void ResetViewDefaults();

    // True when the database was last opened by another version of the program; the new version is then stored.
    [[nodiscard]] bool CheckVersion(const QString& version);

    // Day of the last update check; a database without one gets today.
    [[nodiscard]] QDate GetUpdateDate(QDate today);

    // The one rule for truth values stored as text: "WAHR" in any case or exact "TRUE" is true, "FALSCH" in any case or
    // exact "FALSE" is false; all else is true when it is the word true or a number other than zero.
    [[nodiscard]] static bool ToBool(const QString& text);
    [[nodiscard]] static QString FromBool(bool value);

private:
    void Read() const;
    // Reads again where rows were put back meanwhile or the last reading failed. A failed one waits until the file has
    // given something else: it would hold up every caller as long as somebody has locked the file.
    void CatchUp() const;
    bool DeleteStored(const QString& name);

    struct cValue
    {
        QString Name; // in its stored letter case
        QString Value;
    };

    cDataAccess& m_data;
    mutable QMap<QString, cValue> m_values;        // by lower-cased name
    mutable std::optional<quint64> m_timesPutBack; // of the journal, when they were read
    mutable std::optional<quint64> m_failedAt;     // operations done when the last reading failed
};
