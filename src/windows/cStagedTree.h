#pragma once

#include <QString>
#include <QTreeView>

class cStagedListModel;

// The list of bank transactions: keys, columns and the text of its empty state.
class cStagedTree final : public QTreeView
{
    Q_OBJECT

public:
    explicit cStagedTree(cStagedListModel& model, QWidget* parent = nullptr);

    [[nodiscard]] QList<int> SelectedIds() const;
    void SelectIds(const QList<int>& ids); // and takes the focus, so that Enter books them

    void SetEmptyText(const QString& title, const QString& hint);
    [[nodiscard]] QString LayoutText() const;
    void SetLayoutText(const QString& text); // the default columns for a text that does not fit

Q_SIGNALS:
    void BookRequested();
    void DeleteRequested();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void FitPurpose(); // the purpose takes the room that the other columns leave
    void KeepSelection();
    void RestoreSelection();
    void Select(const QModelIndexList& rows);

    cStagedListModel& m_model;
    QString m_emptyTitle;
    QString m_emptyHint;
    QList<int> m_selected; // while the model is rebuilt
    int m_current = 0;
    int m_currentRow = -1;
    bool m_isFitting = false;
};
