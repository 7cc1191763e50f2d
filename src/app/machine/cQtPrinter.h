#pragma once

#include <QPageLayout>
#include <QString>

#include <memory>
#include <optional>

class QPrinter;
class QWidget;
class cDataAccess;
class cPrintable;
class cUser;

// Printing with the system's dialogs. Paper and direction, and where the last print went, are kept until the program
// ends.
class cQtPrinter
{
public:
    // What is printed into a file comes from this book.
    cQtPrinter(cUser& user, const cDataAccess& book) : m_user(user), m_book(book) {}

    // Asks for printer, pages and copies, and prints; a file (PDF) can be chosen there as well.
    void Print(cPrintable& content, QWidget* parent);

    // Shows the pages as they will be printed; from there they can be printed too.
    void Preview(cPrintable& content, QWidget* parent);

    // Paints the pages that the printer is set to: range, order and copies. What went wrong, in German; empty when
    // nothing did.
    [[nodiscard]] QString Spool(QPrinter& printer, cPrintable& content) const;

private:
    [[nodiscard]] std::unique_ptr<QPrinter> Printer(const cPrintable& content) const;
    void Remember(const QPrinter& printer);
    [[nodiscard]] bool Ask(QPrinter& printer, cPrintable& content, QWidget* parent);

    cUser& m_user;
    const cDataAccess& m_book;
    std::optional<QPageLayout> m_layout;
    QString m_printer; // its name; empty for the system's usual one
    QString m_folder;  // of the last file; empty when the last print was none
};
