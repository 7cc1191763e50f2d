#pragma once

#include "base/modSum.h"

#include <QStyledItemDelegate>

class cEntrySuggestions;

// The fields in the cells of the split table: the search for a category, proposed descriptions, sums as amounts.
class cSplitDelegate final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    // The path of a category; its cell shows what was typed while there is none.
    static constexpr int PathRole = Qt::UserRole + 1;

    cSplitDelegate(cEntrySuggestions& suggestions, eDecimal decimal, QObject* parent);

    // The kind of entry that goes first among equal categories; empty: none.
    void SetType(const QString& type) { m_type = type; }

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;

Q_SIGNALS:
    void CategoryPicked(int line, const QString& path) const;
    void DescriptionPicked(int line, const QString& text) const;
    void NewCategoryWanted(int line, const QString& typed) const;

private:
    [[nodiscard]] QWidget* CategoryEditor(QWidget* parent, int line) const;

    cEntrySuggestions& m_suggestions;
    eDecimal m_decimal;
    QString m_type;
};
