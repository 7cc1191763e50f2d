#include "windows/template/cLookBox.h"

#include "base/cText.h"
#include "views/look/modCategoryColor.h"
#include "views/look/modCategoryIcon.h"
#include "windows/look/modLook.h"

#include <QBoxLayout>
#include <QColorDialog>
#include <QComboBox>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;

cLookBox::cLookBox(QWidget* parent)
    : QWidget(parent),
      m_color(new QComboBox(this)),
      m_ownColor(new QToolButton(this)),
      m_icon(new QComboBox(this))
{
    m_color->setAccessibleName(cText::Tr("Farbe"));
    m_icon->setAccessibleName(cText::Tr("Symbol"));
    setToolTip(cText::Tr("Listen und Diagramme zeigen die Hauptkategorie und ihre Unterkategorien damit."));
    for (QComboBox* box : {m_color, m_icon}) {
        box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        box->setMinimumContentsLength(1);
        box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        box->setIconSize(QSize(fontMetrics().height(), fontMetrics().height()));
    }
    m_icon->setMaxVisibleItems(25); // all of them at once
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_color);
    layout->addWidget(m_ownColor);
    layout->addWidget(m_icon);
    m_ownColor->setText(u"…"_s);
    m_ownColor->setAccessibleName(cText::Tr("Eigene Farbe …"));
    m_ownColor->setToolTip(cText::Tr("Eigene Farbe …"));
    setFocusProxy(m_color);
    FillColors();
    FillIcons();
    connect(m_color, &QComboBox::activated, this, &cLookBox::FillIcons);
    connect(m_ownColor, &QToolButton::clicked, this, &cLookBox::AskColor);
    for (const QComboBox* box : {m_color, m_icon}) {
        connect(box, &QComboBox::currentIndexChanged, this, &cLookBox::Changed);
    }
}

void cLookBox::FillColors()
{
    m_color->clear();
    m_color->addItem(cText::Tr("keine Farbe"), QString());
    const QList<modCategoryColor::cOffer> offers = modCategoryColor::Offers();
    for (const modCategoryColor::cOffer& offer : offers) {
        m_color->addItem(modLook::Icon({.Color = offer.Stored}), offer.Name, offer.Stored);
    }
}

// The pictures in the chosen colour.
void cLookBox::FillIcons()
{
    const QSignalBlocker quiet(m_icon); // the choice stays
    const int chosen = std::max(0, m_icon->currentIndex());
    const QString color = Look().Color;
    m_icon->clear();
    m_icon->addItem(cText::Tr("kein Symbol"), QString());
    const QList<modCategoryIcon::cOffer> offers = modCategoryIcon::Offers();
    for (const modCategoryIcon::cOffer& offer : offers) {
        m_icon->addItem(modLook::Icon({color, offer.Stored}), offer.Name, offer.Stored);
    }
    m_icon->setCurrentIndex(chosen);
}

cCategoryLook cLookBox::Look() const
{
    return {m_color->currentData().toString(), m_icon->currentData().toString()};
}

void cLookBox::SetLook(const cCategoryLook& look)
{
    FillColors();
    ChooseColor(look.Color);
    m_icon->setCurrentIndex(std::max(0, m_icon->findData(look.Icon)));
}

void cLookBox::ChooseColor(const QString& stored)
{
    if (m_color->findData(stored) < 0) {
        m_color->addItem(modLook::Icon({.Color = stored}), stored, stored);
    }
    m_color->setCurrentIndex(m_color->findData(stored));
    FillIcons();
}

void cLookBox::AskColor()
{
    const QString shown = Look().Color;
    const QColor start = shown.isEmpty() ? QColor(Qt::gray) : QColor(shown);
    const QColor chosen = QColorDialog::getColor(start, this, cText::Tr("Farbe der Hauptkategorie"));
    if (chosen.isValid()) {
        ChooseColor(chosen.name());
    }
}
