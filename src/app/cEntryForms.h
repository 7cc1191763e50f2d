#pragma once

#include "views/entry/cEntryDrafts.h"

#include <QDateTime>

#include <optional>

class cBook;
class cEntryEditor;
class cShell;
class frmBuchung;
struct cBookTools;

// The window of an entry while it is open. When the program has to end, what is typed there is kept as a draft, and the
// next start offers it.
class cEntryForms final
{
public:
    // All outlive it; the book may become another one.
    cEntryForms(const cBookTools& tools, const cBook& book, cShell& shell)
        : m_tools(tools),
          m_book(book),
          m_shell(shell)
    {
    }

    // Shows the form until it is closed. `kept`: it shows a draft, which goes once the form was saved or given up.
    void Run(frmBuchung& form, const cEntryEditor& editor, const std::optional<QDateTime>& kept = std::nullopt);

    // Keeps what the open form holds and nobody has saved. Asks and shows nothing.
    void Keep();
    // Closes it without a question; what was kept stays.
    void Close();

    [[nodiscard]] cEntryDrafts Drafts() const;

private:
    void Forget();

    const cBookTools& m_tools;
    const cBook& m_book;
    cShell& m_shell;
    frmBuchung* m_form = nullptr;
    const cEntryEditor* m_editor = nullptr;
    std::optional<QDateTime> m_kept; // the draft of the open form
    bool m_isEnding = false;
};
