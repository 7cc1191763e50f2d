#include "windows/main/cSavedViewMenu.h"

#include <QAction>
#include <QKeySequence>
#include <QMenu>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int mostKeys = 9;

} // namespace

cSavedViewMenu::cSavedViewMenu(QMenu& menu) : QObject(&menu), m_menu(menu)
{
}

void cSavedViewMenu::Show(const QStringList& names)
{
    if (names == m_names) {
        return;
    }
    m_names = names;
    qDeleteAll(m_actions);
    m_actions.clear();
    m_actions.append(m_menu.addSeparator());
    for (int number = 0; number < names.size(); ++number) {
        if (names.at(number).isEmpty()) {
            continue;
        }
        QString text = names.at(number);
        text.replace(u'&', u"&&"_s);
        const bool hasKey = number < mostKeys;
        QAction* action = m_menu.addAction(hasKey ? u"&%1  %2"_s.arg(number + 1).arg(text) : text);
        if (hasKey) {
            action->setShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + number)));
        }
        connect(action, &QAction::triggered, this, [this, number] { Q_EMIT Chosen(number); });
        m_actions.append(action);
    }
}
