#pragma once

#include "base/cUser.h"
#include "views/receipt/cReceiptFolder.h"

#include <QList>
#include <QString>

// What files of the folder "Belege" hang at, an entry or an account at a bank, and how the user is spoken to of them.
// What changes the book is one step, and tells the user why it failed.
class cReceiptHolder
{
public:
    cReceiptHolder() = default;
    cReceiptHolder(const cReceiptHolder&) = delete;
    cReceiptHolder& operator=(const cReceiptHolder&) = delete;
    virtual ~cReceiptHolder() = default;

    struct cItem
    {
        cReceiptFolder::cFile File;
        QString Text; // by which a list shows it
    };

    struct cWords
    {
        QString Files; // what the list is called
        QString Empty; // said while there is none, and how to get one
        QString EmptyReadOnly;
        QString Add; // titles of the file dialogs
        QString ChooseAgain;
        QString Filter;
        ePurpose Purpose;
        QString Remove; // the question, with {0} for the file
        QString RemoveTitle;
    };

    [[nodiscard]] virtual QString Title() const = 0;
    [[nodiscard]] virtual cWords Words() const = 0;
    [[nodiscard]] virtual QList<cItem> Items() const = 0;
    [[nodiscard]] virtual bool Add(const QList<cReceiptSource>& sources) = 0;
    [[nodiscard]] virtual bool Detach(const QString& name) = 0;                       // the file stays
    [[nodiscard]] virtual bool Replace(const QString& name, const QString& path) = 0; // where a file is missing
};
