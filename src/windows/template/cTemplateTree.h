#pragma once

#include "views/list/cTreeLayout.h"
#include "views/template/cTemplateTreeModel.h"

#include <QTreeView>

#include <optional>

class cColumnFit;

// The tree of categories or of accounts. It keeps the selected line and the open branches while the model is rebuilt.
class cTemplateTree final : public QTreeView
{
    Q_OBJECT

public:
    explicit cTemplateTree(cTemplateTreeModel& model, QWidget* parent = nullptr);

    [[nodiscard]] const cTemplateNode* Current() const; // null for none
    // Selects a line and opens its branch. False when there is no such line.
    bool Select(const QString& path);
    bool Select(const cTemplateNode& node);
    void SelectFirst();

    [[nodiscard]] cTreeLayout Layout() const;
    void SetLayout(const cTreeLayout& layout); // default columns for a text that does not fit

Q_SIGNALS:
    void Chosen(); // the user, or Select, has gone to another line

private:
    void Keep();
    void Restore();
    void SelectIndex(const QModelIndex& index);
    [[nodiscard]] QStringList OpenBranches() const;
    void OpenThese(const QStringList& names);

    cTemplateTreeModel& m_model;
    cColumnFit* m_fit;
    QStringList m_open; // while the model is rebuilt
    std::optional<cTemplateNode> m_current;
    QPoint m_place; // row among its siblings, and row of its branch
    bool m_isRebuilding = false;
};
