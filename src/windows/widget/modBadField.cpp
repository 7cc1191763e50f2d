#include "windows/widget/modBadField.h"

#include <QComboBox>
#include <QLineEdit>
#include <QToolTip>

namespace {

constexpr QColor badField(245, 160, 160);

void Colour(QWidget& field)
{
    QPalette colors = field.palette();
    for (const QPalette::ColorRole back : {QPalette::Base, QPalette::Button}) { // a box without text field is a button
        colors.setColor(back, badField);
    }
    for (const QPalette::ColorRole text : {QPalette::Text, QPalette::ButtonText, QPalette::PlaceholderText}) {
        colors.setColor(text, Qt::black);
    }
    field.setPalette(colors);
}

} // namespace

QColor modBadField::Color()
{
    return badField;
}

void modBadField::Mark(QLineEdit& edit, const QString& why)
{
    Colour(edit);
    QObject::connect(
        &edit, &QLineEdit::textEdited, &edit, [&edit] { Clear(edit); }, Qt::SingleShotConnection);
    if (!why.isEmpty()) {
        QToolTip::showText(edit.mapToGlobal(edit.rect().bottomLeft()), why, &edit);
    }
}

void modBadField::Mark(QComboBox& box)
{
    Colour(box);
    QObject::connect(
        &box, &QComboBox::currentIndexChanged, &box, [&box] { box.setPalette({}); }, Qt::SingleShotConnection);
}

void modBadField::Clear(QLineEdit& edit)
{
    edit.setPalette({});
}

bool modBadField::IsMarked(const QWidget& field)
{
    return field.palette().color(QPalette::Active, QPalette::Base) == badField;
}
