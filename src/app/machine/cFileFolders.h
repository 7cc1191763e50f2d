#pragma once

#include "base/cUser.h"
#include "core/cConfiguration.h"

#include <QString>

class cRegistry;

// Where file dialogs begin: for each purpose in the folder that was chosen last, over all books of the user.
class cFileFolders
{
public:
    explicit cFileFolders(cRegistry& registry) : m_configuration(registry) {}

    // A folder that is there. While none was chosen, and while that one cannot be reached (a stick that is not plugged
    // in), it is the one for downloads where a bank's files are wanted, and the one for documents otherwise, or home
    // where that is missing.
    [[nodiscard]] QString For(ePurpose purpose) const;

    // The folder of a file that was chosen.
    void Keep(ePurpose purpose, const QString& path);

private:
    cConfiguration m_configuration; // without a book: of the user
};
