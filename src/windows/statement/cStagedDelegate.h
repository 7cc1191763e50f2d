#pragma once

#include "windows/widget/cRowDelegate.h"

#include <QPersistentModelIndex>
#include <QStringList>

class cEntrySuggestions;

// Cells of the list of bank transactions: amounts in their colour, and lists to choose category and interval from.
class cStagedDelegate final : public cRowDelegate
{
    Q_OBJECT

public:
    // `intervals` as they are shown.
    cStagedDelegate(cEntrySuggestions& suggestions, QStringList intervals, QObject* parent = nullptr);

    // The next category that is edited starts with this text, and leaving it unchanged asks no more; Enter does.
    void StartWith(const QString& typed) { m_start = m_declined = typed; }

    [[nodiscard]] QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                        const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;

Q_SIGNALS:
    // The user chose a text for a cell; who listens decides which rows it goes to.
    void Chosen(const QModelIndex& index, const QString& text) const;
    // The same for a text that names no category yet; its field may still be open.
    void NewCategoryWanted(const QPersistentModelIndex& index, const QString& typed) const;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

private:
    [[nodiscard]] QWidget* CategoryEditor(QWidget* parent, const QModelIndex& index) const;
    [[nodiscard]] QWidget* IntervalEditor(QWidget* parent) const;

    cEntrySuggestions& m_suggestions;
    QStringList m_intervals;
    mutable QString m_start;
    mutable QString m_declined; // what was asked about already; leaving a field commits it more than once
};
