#pragma once

#include "views/book/cPasswordTries.h"

#include <QString>

class cConfiguration;
class cDataAccess;
class cUser;

// Setting, changing and removing the password of the open book. What is wrong with the input is shown.
class cPasswordFlow
{
public:
    enum class eResult { Done, Refused, WrongPassword };

    cPasswordFlow(cDataAccess& data, cConfiguration& configuration, cUser& user);

    // Whether the book has a password now.
    [[nodiscard]] bool HasPassword() const;

    // Sets the first password or, after the old one was given, another one.
    [[nodiscard]] eResult Set(const QString& old, const QString& password, const QString& repeated);
    [[nodiscard]] eResult Remove(const QString& old);

    [[nodiscard]] cPasswordTries& Tries() { return m_tries; }

private:
    [[nodiscard]] bool Matches(const QString& old);
    [[nodiscard]] QString Objection(const QString& password, const QString& repeated) const;
    [[nodiscard]] eResult Stored(bool isStored, const QString& message);

    cDataAccess& m_data;
    cConfiguration& m_configuration;
    cUser& m_user;
    cPasswordTries m_tries;
};
