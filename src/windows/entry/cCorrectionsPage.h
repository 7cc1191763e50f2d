#pragma once

#include "base/cUser.h"
#include "model/cEntryItemFixMod.h"
#include "views/entry/cEntryFields.h"

#include <QDate>
#include <QWidget>

#include <functional>

class frmKorrektur;
class QPushButton;
class QTreeWidget;

// The corrections of a recurring entry as a list. Changes are handed on; they count when the entry is saved.
class cCorrectionsPage final : public QWidget
{
    Q_OBJECT

public:
    using fnFields = std::function<cEntryFields()>;
    using fnAnswer = std::function<eAnswer()>;

    // `fields` gives the entry as it is typed at the moment, `askToSave` asks before what is typed for a correction is
    // lost.
    cCorrectionsPage(QDate today, fnFields fields, fnAnswer askToSave, QWidget* parent = nullptr);

    // Lists the corrections of the fields.
    void ShowLines();

Q_SIGNALS:
    void CorrectionsEdited(const cEntryItemFixModList& corrections);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Build();
    void ShowButtons();
    [[nodiscard]] int Line() const;
    void Add();
    void Change();
    void Remove();

    QDate m_today;
    fnFields m_fields;
    fnAnswer m_askToSave;
    QTreeWidget* m_list;
    QPushButton* m_add;
    QPushButton* m_change;
    QPushButton* m_remove;
};
