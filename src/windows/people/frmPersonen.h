#pragma once

#include <QDialog>

class cPeople;
class cShareTable;
class QLabel;
class QLayout;
class QLineEdit;
class QListWidget;
class QPushButton;

// The people of the household and what share they have in its accounts.
class frmPersonen final : public QDialog
{
    Q_OBJECT

public:
    // `people` outlives the window.
    explicit frmPersonen(cPeople& people, QWidget* parent = nullptr);

    void reject() override; // asks before a name or shares that are not stored are lost

Q_SIGNALS:
    void PeopleChanged();

private:
    [[nodiscard]] QLayout* BuildPeople();
    [[nodiscard]] QPushButton* AddButton(QLayout& layout, const QString& text);
    void Connect();
    void ShowPeople();
    void ShowButtons();
    void Did(bool isDone); // something to the people
    [[nodiscard]] QString Chosen() const;

    cPeople& m_people;
    QListWidget* m_list;
    QLineEdit* m_name;
    cShareTable* m_shares;
    QLabel* m_explanation;
    QPushButton* m_add = nullptr;
    QPushButton* m_rename = nullptr;
    QPushButton* m_remove = nullptr;
};
