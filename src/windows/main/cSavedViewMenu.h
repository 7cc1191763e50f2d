#pragma once

#include <QList>
#include <QObject>
#include <QStringList>

class QAction;
class QMenu;

// Kept views at the end of a menu; the first nine with a key.
class cSavedViewMenu final : public QObject
{
    Q_OBJECT

public:
    explicit cSavedViewMenu(QMenu& menu);

    // In their order; one without a name is left out and keeps its number.
    void Show(const QStringList& names);

Q_SIGNALS:
    void Chosen(int number); // from 0

private:
    QMenu& m_menu;
    QStringList m_names;
    QList<QAction*> m_actions;
};
