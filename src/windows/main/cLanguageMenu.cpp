#include "windows/main/cLanguageMenu.h"

#include "base/cText.h"

#include <QActionGroup>

cLanguageMenu::cLanguageMenu(cNationalSettings& settings, QWidget* parent)
    : QMenu(cText::Tr("Sprache / &Language"), parent),
      m_settings(settings)
{
    setObjectName(QStringLiteral("languages"));
    auto* group = new QActionGroup(this);
    const QList<cNationalSettings::cOption> languages = cNationalSettings::Languages();
    for (const cNationalSettings::cOption& language : languages) {
        QAction* action = addAction(u'&' + language.Shown);
        action->setCheckable(true);
        action->setData(language.Stored);
        group->addAction(action);
    }
    connect(group, &QActionGroup::triggered, this,
            [this](const QAction* action) { m_settings.ChooseLanguage(action->data().toString()); });
    connect(this, &QMenu::aboutToShow, this, &cLanguageMenu::ShowCurrent);
}

void cLanguageMenu::ShowCurrent()
{
    const QString current = m_settings.Current().Language;
    const QList<QAction*> choices = actions();
    for (QAction* action : choices) {
        action->setChecked(action->data().toString() == current);
    }
}
