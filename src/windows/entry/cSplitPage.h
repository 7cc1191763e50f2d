#pragma once

#include "views/entry/cEntryFields.h"

#include <QWidget>

#include <functional>

class cEntryEditor;
class cSplitTable;
class QLabel;
class QPushButton;

// The split table with what is left of the whole amount, and the buttons that go with it.
class cSplitPage final : public QWidget
{
    Q_OBJECT

public:
    using fnFields = std::function<cEntryFields()>;

    // `fields` gives the entry as it is typed at the moment, with the parts of this page.
    cSplitPage(cEntryEditor& editor, fnFields fields, QWidget* parent = nullptr);

    [[nodiscard]] cSplitTable& Table() { return *m_table; }
    [[nodiscard]] const cSplitTable& Table() const { return *m_table; }

    void ShowParts(const cEntryFields& fields);
    void ShowRest(const cEntryFields& fields);

    // Colours the amount of the part that could not be saved and moves there.
    void ShowBadPart();

Q_SIGNALS:
    // A part has brought the kind or the interval of the whole.
    void DefaultsTaken(const cEntryFields& fields);

private:
    void Build();
    void ChooseCategory(int line, const QString& path);
    void ChooseDescription(int line, const QString& text);
    void OfferCategory(int line, const QString& typed);
    void FillRest();
    void RemoveLine();

    cEntryEditor& m_editor;
    fnFields m_fields;
    cSplitTable* m_table;
    QLabel* m_rest;
    QPushButton* m_fill;
    QPushButton* m_remove;
};
