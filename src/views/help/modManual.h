#pragma once

#include "views/main/modCommand.h"

#include <QString>
#include <QStringList>

#include <span>

// Where the manual explains what. A place is a page of the manual, with "#" and one of its headings where it is not the
// whole page: "11-buch.html#passwort".
namespace modManual {

inline const QString Folder = QStringLiteral("handbuch"); // of the installation, with the pages
inline const QString First = QStringLiteral("index.html");
inline const QString Questions = QStringLiteral("faq.html");

struct cTopic
{
    const char* Window; // class name
    const char* Place;
};

// Every window of the program.
[[nodiscard]] std::span<const cTopic> Topics();

// The place of the first of these windows that has one; else the first page. They are named by their classes, the most
// special one first.
[[nodiscard]] QString PlaceOf(const QStringList& windows);

// What a command of the menu "Hilfe" leads to: a page of the maker where there is a home page, else a place of the
// manual. `windows` as above.
[[nodiscard]] QString AddressOf(modCommand::eId command, const QString& homepage, const QStringList& windows);

// True for an address that belongs into the browser or the mail program.
[[nodiscard]] bool IsOutside(const QString& address);

// That the manual is German, in the user's language; empty for whoever reads German.
[[nodiscard]] QString LanguageNote();

} // namespace modManual
