#include "windows/widget/modBadField.h"

#include <QLineEdit>

namespace {

constexpr QColor badField(245, 160, 160);

} // namespace

QColor modBadField::Color()
{
    return badField;
}

void modBadField::Mark(QLineEdit& edit)
{
    QPalette colors = edit.palette();
    colors.setColor(QPalette::Base, badField);
    colors.setColor(QPalette::Text, Qt::black);
    edit.setPalette(colors);
    QObject::connect(
        &edit, &QLineEdit::textEdited, &edit, [&edit] { Clear(edit); }, Qt::SingleShotConnection);
}

void modBadField::Clear(QLineEdit& edit)
{
    edit.setPalette({});
}

bool modBadField::IsMarked(const QLineEdit& edit)
{
    return edit.palette().color(QPalette::Active, QPalette::Base) == badField;
}
