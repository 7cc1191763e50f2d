#include "windows/widget/cDayEdit.h"

#include "base/cText.h"
#include "base/modDate.h"
#include "base/modDayText.h"
#include "windows/look/modIcon.h"
#include "windows/look/modTone.h"
#include "windows/widget/modBadField.h"
#include "windows/widget/modEmptyField.h"
#include "windows/widget/modPopup.h"

#include <QAction>
#include <QBoxLayout>
#include <QCalendarWidget>
#include <QFocusEvent>
#include <QFrame>
#include <QKeyEvent>
#include <QTextCharFormat>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;

namespace {

// The day after a step key; invalid for all other keys.
QDate Stepped(QDate day, int key)
{
    switch (key) {
    case Qt::Key_Up: return day.addDays(1);
    case Qt::Key_Down: return day.addDays(-1);
    case Qt::Key_PageUp: return day.addMonths(1);
    case Qt::Key_PageDown: return day.addMonths(-1);
    default: return {};
    }
}

// The calendar's months stand on the colour of a selection.
QColor OnAccent(const QPalette& palette)
{
    return palette.color(QPalette::HighlightedText);
}

bool OpensCalendar(const QKeyEvent& event)
{
    return (event.key() == Qt::Key_F4 && event.modifiers() == Qt::NoModifier)
        || (event.key() == Qt::Key_Down && event.modifiers().testFlag(Qt::AltModifier));
}

} // namespace

cDayEdit::cDayEdit(QDate today, QWidget* parent)
    : QLineEdit(parent),
      m_today(today),
      m_calendar(addAction(modIcon::Get(u"kalender"_s), QLineEdit::TrailingPosition))
{
    m_calendar->setToolTip(cText::Tr("Kalender (F4)"));
    m_calendar->setText(cText::Tr("Kalender"));
    connect(m_calendar, &QAction::triggered, this, &cDayEdit::OpenCalendar);
    connect(this, &QLineEdit::returnPressed, this, &cDayEdit::TellChosen);
    SetReadOnly(false);
    modEmptyField::Tell(*this);
}

void cDayEdit::SetReadOnly(bool isReadOnly)
{
    setReadOnly(isReadOnly);
    // One that takes no typing must not look as if it did.
    setEnabled(!isReadOnly);
    m_calendar->setVisible(!isReadOnly);
    setToolTip(isReadOnly
                   ? QString()
                   : cText::Tr("Auch 3, {0}, +7, heute oder gestern; Pfeiltasten blättern, F4 öffnet den Kalender",
                               {modDate::ToShortText(QDate(m_today.year(), 5, 3))}));
}

void cDayEdit::SetDay(QDate day)
{
    m_chosen = day;
    Show(day);
    if (modBadField::IsMarked(*this)) {
        modBadField::Clear(*this);
    }
}

QDate cDayEdit::Day() const
{
    return text() == m_shownText ? m_shownDay : modDayText::Read(text(), m_today);
}

void cDayEdit::Show(QDate day)
{
    m_shownDay = day;
    m_shownText = modDate::ToText(day);
    setText(m_shownText);
}

bool cDayEdit::IsReadable() const
{
    return Day().isValid() || text().trimmed().isEmpty();
}

QSize cDayEdit::sizeHint() const
{
    const QSize hint = QLineEdit::sizeHint();
    return {fontMetrics().horizontalAdvance(u"00.00.00000"_s) + 3 * hint.height() / 2, hint.height()};
}

void cDayEdit::Pick(QDate day)
{
    Show(day);
    selectAll();
    Q_EMIT textEdited(text()); // the user did it, if not letter by letter
    TellChosen();
}

void cDayEdit::TellChosen()
{
    if (IsReadable() && Day() != m_chosen) {
        m_chosen = Day();
        Q_EMIT DayChosen();
    }
}

void cDayEdit::OpenCalendar()
{
    auto* popup = new QFrame(this, Qt::Popup);
    popup->setFrameShape(QFrame::StyledPanel);
    popup->setAttribute(Qt::WA_DeleteOnClose);
    auto* calendar = new QCalendarWidget(popup);
    auto* layout = new QVBoxLayout(popup);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->addWidget(calendar);
    calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    QTextCharFormat weekend;
    weekend.setForeground(modTone::Expense(palette())); // readable on dark windows too
    calendar->setWeekdayTextFormat(Qt::Saturday, weekend);
    calendar->setWeekdayTextFormat(Qt::Sunday, weekend);
    for (const auto& [name, arrow] :
         {std::pair(u"qt_calendar_prevmonth"_s, Qt::LeftArrow), {u"qt_calendar_nextmonth"_s, Qt::RightArrow}}) {
        if (auto* button = calendar->findChild<QToolButton*>(name)) { // its picture is none of ours
            button->setArrowType(arrow);
            modTone::Use(*button, OnAccent, QPalette::ButtonText);
        }
    }
    calendar->setSelectedDate(Day().isValid() ? Day() : m_today);
    const auto take = [this, popup](QDate day) {
        popup->close();
        Pick(day);
    };
    connect(calendar, &QCalendarWidget::clicked, this, take);
    connect(calendar, &QCalendarWidget::activated, this, take);
    popup->adjustSize();
    popup->move(modPopup::Below(*this, popup->size()));
    popup->show();
    calendar->setFocus();
}

void cDayEdit::keyPressEvent(QKeyEvent* event)
{
    if (isReadOnly()) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    if (OpensCalendar(*event)) {
        OpenCalendar();
        return;
    }
    const QDate day = Stepped(Day().isValid() ? Day() : m_today, event->key());
    if (day.isValid() && event->modifiers() == Qt::NoModifier) {
        Pick(day);
        return;
    }
    QLineEdit::keyPressEvent(event);
}

void cDayEdit::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    if (event->reason() == Qt::MouseFocusReason) {
        QMetaObject::invokeMethod(this, &QLineEdit::selectAll, Qt::QueuedConnection);
    }
}

void cDayEdit::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    if (event->reason() == Qt::PopupFocusReason || isReadOnly()) {
        return;
    }
    if (!IsReadable()) {
        modBadField::Mark(*this, modDayText::Fault(text(), m_today));
    } else if (Day().isValid()) {
        Show(Day());
    }
    TellChosen();
}
