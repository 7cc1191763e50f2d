#pragma once

#include "views/cEntryListModel.h"

#include <QTreeView>

// The entry list on screen: columns that can be chosen, moved and remembered, a selection that survives a rebuild, and
// a text where there is nothing to show.
class cEntryTree final : public QTreeView
{
    Q_OBJECT

public:
    explicit cEntryTree(cEntryListModel& model, QWidget* parent = nullptr);

    [[nodiscard]] QString LayoutText() const;
    void SetLayoutText(const QString& text); // an unreadable text gives the default layout
    void ShowColumnMenu();                   // below the header, for the keyboard too
    void SetEmptyHint(const QString& hint);
    void ScrollTo(QDate day);
    [[nodiscard]] QList<cEntryListModel::cKey> SelectedKeys() const; // without the heads of groups

Q_SIGNALS:
    void SelectionKeysChanged(const QList<cEntryListModel::cKey>& keys);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void SetDefaultLayout();
    void KeepSelection();
    void RestoreSelection();
    void ReportSelection();
    void OpenColumnMenu(const QPoint& globalPosition);

    cEntryListModel& m_model;
    QList<cEntryListModel::cKey> m_selected;
    cEntryListModel::cKey m_current;
    QString m_emptyHint;
    bool m_isRebuilding = false;
};
