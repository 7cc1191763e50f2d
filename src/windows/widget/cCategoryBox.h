#pragma once

#include <QComboBox>
#include <QStringList>

#include <functional>

class cEntrySuggestions;
class cPickList;

// The field for a category: typing searches in both levels, recently used ones stand first. A text counts once it was
// picked or, when the field is left, as the category that it means.
class cCategoryBox final : public QComboBox
{
    Q_OBJECT

public:
    explicit cCategoryBox(cEntrySuggestions& suggestions, QWidget* parent = nullptr);

    // Shows a path as picked, also one that is no longer offered.
    void SetPath(const QString& path);

    // The picked path, or the one that the typed text means; empty when it means none.
    [[nodiscard]] QString Path() const;

    // Takes the category that a typed text means, as leaving the field does.
    void Settle();

    void showPopup() override;

Q_SIGNALS:
    void PathPicked(const QString& path);

protected:
    void focusOutEvent(QFocusEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void Take(const QString& path);

    cEntrySuggestions& m_suggestions;
    cPickList* m_list;
    QString m_path; // as picked; empty while the text is only typed
};
