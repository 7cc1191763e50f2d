#pragma once

#include "windows/widget/cRowDelegate.h"

#include <QStringList>

#include <functional>

// Cells of the list of bank transactions: amounts in their colour, and lists to choose category and interval from.
class cStagedDelegate final : public cRowDelegate
{
    Q_OBJECT

public:
    // What a column offers when it is edited.
    using fnItems = std::function<QStringList(int column)>;

    explicit cStagedDelegate(fnItems items, QObject* parent = nullptr);

    [[nodiscard]] QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                        const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;

Q_SIGNALS:
    // The user chose a text for a cell; who listens decides which rows it goes to.
    void Chosen(const QModelIndex& index, const QString& text) const;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

private:
    fnItems m_items;
};
