#include "windows/widget/modDayRange.h"

#include "base/cText.h"

#include <QBoxLayout>
#include <QLabel>

QWidget* modDayRange::Make(QWidget& first, QWidget& last, QWidget* parent)
{
    auto* range = new QWidget(parent);
    auto* row = new QHBoxLayout(range);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(&first);
    row->addWidget(new QLabel(cText::Tr("bis:"), range));
    row->addWidget(&last);
    row->addStretch();
    for (QWidget* day : {&first, &last}) {
        day->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        day->setMinimumWidth(day->sizeHint().width());
    }
    range->setFocusProxy(&first);
    range->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    return range;
}
