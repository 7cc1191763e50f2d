#pragma once

#include <QComboBox>
#include <QStringList>

#include <functional>

class cEntrySuggestions;
class cPickList;

// The field for a category: typing searches in both levels. A text counts once it was picked or, when the field is
// left, as the category that it means. One that means none stays, and the last line of the list offers to make a
// category of it.
class cCategoryBox final : public QComboBox
{
    Q_OBJECT

public:
    // Who asks the user when a new category is picked. A field in the cell of a table is gone as soon as a question
    // takes the focus, so there the owner has to.
    enum class eNew { IsAsked, IsTold };

    explicit cCategoryBox(cEntrySuggestions& suggestions, QWidget* parent = nullptr, eNew whoAsks = eNew::IsAsked);

    // Shows a path as picked, also one that is no longer offered; for an empty one what is typed.
    void SetPath(const QString& path, const QString& typed = {});

    // The kind of entry that goes first among equal categories; empty: none.
    void SetType(const QString& type) { m_type = type; }

    // The picked path, or the one that the typed text means; empty when it means none.
    [[nodiscard]] QString Path() const;

    // What stands there and names no category; empty when it does.
    [[nodiscard]] QString UnknownText() const;

    // Asks whether the text shall become a category, and takes that one. False when it does not.
    bool AskNew();

    // What the line of the list does that offers to make a category of the text.
    void WantNew();

    // Takes the category that a typed text means, as leaving the field does.
    void Settle();

    void showPopup() override;

Q_SIGNALS:
    void PathPicked(const QString& path); // empty when the field was emptied
    void NewWanted(const QString& typed); // with eNew::IsTold

protected:
    void focusOutEvent(QFocusEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void Take(const QString& path);
    void ShowBeginning();

    cEntrySuggestions& m_suggestions;
    eNew m_whoAsks;
    cPickList* m_list = nullptr;
    QString m_path; // as picked; empty while the text is only typed
    QString m_told; // the path that the owner knows of
    QString m_type;
    bool m_isAsking = false; // the question takes the focus, which does not end the input
};
