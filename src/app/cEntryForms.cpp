#include "app/cEntryForms.h"

#include "base/cClock.h"
#include "base/cShell.h"
#include "core/cBook.h"
#include "core/cBookTools.h"
#include "views/entry/cEntryEditor.h"
#include "windows/entry/frmBuchung.h"

#include <QScopedValueRollback>

cEntryDrafts cEntryForms::Drafts() const
{
    return {m_shell.StateFolder(), m_book.Path()};
}

void cEntryForms::Run(frmBuchung& form, const cEntryEditor& editor, const std::optional<QDateTime>& kept)
{
    const QScopedValueRollback openForm(m_form, &form);
    const QScopedValueRollback openEditor(m_editor, &editor);
    const QScopedValueRollback openKept(m_kept, kept);
    QObject::connect(&form, &frmBuchung::EntrySaved, &form, [this] { Forget(); });
    form.exec();
    if (!m_isEnding) {
        Forget();
    }
}

void cEntryForms::Keep()
{
    const std::optional<cEntryFields> fields = m_form != nullptr ? m_form->Unsaved() : std::nullopt;
    if (!fields) {
        return;
    }
    cEntryDraft draft = m_editor->Draft(*fields);
    draft.Kept = m_tools.Clock.Now();
    const std::optional<QDateTime> former = m_kept;
    if (Drafts().Keep(draft)) {
        m_kept = draft.Kept;
        if (former && former != m_kept) {
            Drafts().Remove(*former); // only now: one of the two is there at any time
        }
    }
}

void cEntryForms::Close()
{
    m_isEnding = true;
    if (m_form != nullptr) {
        m_form->done(QDialog::Rejected);
    }
}

void cEntryForms::Forget()
{
    if (m_kept) {
        Drafts().Remove(*m_kept);
        m_kept.reset();
    }
}
