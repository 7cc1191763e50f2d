#pragma once

#include <QStyledItemDelegate>

class cEntrySuggestions;

// The fields in the cells of the split table: the search for a category, proposed descriptions, sums as amounts.
class cSplitDelegate final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    cSplitDelegate(cEntrySuggestions& suggestions, QObject* parent);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;

Q_SIGNALS:
    void CategoryPicked(int line, const QString& path) const;
    void DescriptionPicked(int line, const QString& text) const;

private:
    cEntrySuggestions& m_suggestions;
};
