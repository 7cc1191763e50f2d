#pragma once

#include "views/template/cTemplateManager.h"

#include <QDialog>

#include <functional>
#include <optional>

class cTemplatePanel;
class cTemplateTree;
class QAction;
class QLayout;
class QTabWidget;

// Categories and accounts: the trees on the left, the fields of the selected line on the right. What was typed is saved
// when the line or the window is left.
class frmKategorie final : public QDialog
{
    Q_OBJECT

public:
    explicit frmKategorie(cTemplateManager& manager, QWidget* parent = nullptr);

    // Goes to a category ("Haupt; Unter", "Haupt") or to an account. A category that is not there leads to its main
    // category; false when that is not there either.
    bool Select(const QString& path);

    void done(int result) override; // every way to close: stays open when a change is refused

private:
    using fnAction = bool (cTemplateManager::*)(const cTemplateNode&);

    void BuildActions();
    QAction* MakeAction(const QString& icon, const QString& text, const QKeySequence& key,
                        const std::function<void()>& run);
    QLayout* BuildBar();
    void BuildLayout();
    void Connect();

    [[nodiscard]] cTemplateTree& Tree() const; // the one in front
    bool Leave();                              // saves what was typed; false when it was refused
    void ChooseLine();
    void ShowLine();
    void ShowActions();
    void Save();
    void AskToSave();
    void Discard();
    void Add();
    void AddMain();
    void Run(fnAction action);
    void Move(cTemplateManager::eDirection direction);
    void Rename();
    void Go(const QString& path); // to what was just added or renamed

    cTemplateManager& m_manager;
    QTabWidget* m_tabs;
    cTemplateTree* m_categories;
    cTemplateTree* m_accounts;
    cTemplatePanel* m_panel;
    QAction* m_add = nullptr;
    QAction* m_addMain = nullptr;
    QAction* m_rename = nullptr;
    QAction* m_merge = nullptr;
    QAction* m_delete = nullptr;
    QAction* m_up = nullptr;
    QAction* m_down = nullptr;
    std::optional<cTemplateNode> m_shown; // the line in the panel
    bool m_isWaiting = false;             // for the save that a change of the line has asked for
};
