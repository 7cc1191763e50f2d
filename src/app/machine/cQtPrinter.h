#pragma once

#include <memory>

class QPrinter;
class QWidget;
class cPrintable;
class cUser;

// Printing with the system's dialogs. Paper and direction are kept until the program ends.
class cQtPrinter
{
public:
    explicit cQtPrinter(cUser& user);
    ~cQtPrinter();
    cQtPrinter(const cQtPrinter&) = delete;
    cQtPrinter& operator=(const cQtPrinter&) = delete;

    // Asks for printer, pages and copies, and prints; a file (PDF) can be chosen there as well.
    void Print(cPrintable& content, QWidget* parent);

    // Shows the pages as they will be printed; from there they can be printed too.
    void Preview(cPrintable& content, QWidget* parent);

    // Paints the pages that the printer is set to: range, order and copies. False when it takes none.
    [[nodiscard]] static bool Spool(QPrinter& printer, cPrintable& content);

private:
    [[nodiscard]] QPrinter& Printer(); // looking for printers takes a moment, so only when one is needed

    cUser& m_user;
    std::unique_ptr<QPrinter> m_printer;
};
