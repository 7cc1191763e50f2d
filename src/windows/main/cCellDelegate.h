#pragma once

#include "windows/main/cEntryDelegate.h"

#include <QPersistentModelIndex>

#include <optional>

class cCellEdit;

// Paints entries and makes the fields in which their cells are typed. What was typed is held here until the field is
// gone, because storing it may ask questions and rebuilds the list.
class cCellDelegate final : public cEntryDelegate
{
    Q_OBJECT

public:
    // A cell that was left, what was typed there, and how many cells further the user wants to go on.
    struct cTyped
    {
        QPersistentModelIndex Cell;
        QString Text;
        std::optional<int> Step{}; // none: the field was left by a click elsewhere
    };

    // `cells` outlives the delegate.
    explicit cCellDelegate(cCellEdit& cells, QObject* parent = nullptr);

    // What the next field starts with, and whether the user has typed it before.
    void Begin(const QString& text, bool isTyped);
    [[nodiscard]] std::optional<cTyped> TakeTyped();

    [[nodiscard]] QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                        const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    // Wide enough to type in, also where the column is narrow.
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] static QString TextOf(const QWidget& editor);
    [[nodiscard]] bool IsRefused(QWidget& editor) const;
    void Leave(QWidget& editor, int step);

    cCellEdit& m_cells;
    QString m_text;
    bool m_isTyped = false;
    mutable int m_column = 0;              // of the field that is open
    mutable std::optional<cTyped> m_typed; // the base class tells of it in const functions
    std::optional<int> m_step;
};
