#pragma once

#include <QDate>
#include <QMap>
#include <QString>

class cDataAccess;

// The settings of the open database in memory, kept in step with table `setting`. Names are compared without regard to
// case. On a database opened for reading only, changes live until the program ends.
class cSettings
{
public:
    explicit cSettings(cDataAccess& data);

    // Reads the table again, after another database was opened.
    void Reload();

    [[nodiscard]] QString Get(const QString& name) const; // empty when unknown
    bool Set(const QString& name, const QString& value);  // false, and unchanged in memory, when the database refuses
    bool Delete(const QString& name);

    // Truth values of the settings; see ToBool. The five view switches are on until somebody switches them off; any
    // other name that is unknown is false.
    [[nodiscard]] bool GetBool(const QString& name) const;
    bool SetBool(const QString& name, bool value);

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
    struct cValue
    {
        QString Name; // in its stored letter case
        QString Value;
    };

    cDataAccess& m_data;
    QMap<QString, cValue> m_values; // by lower-cased name
};
