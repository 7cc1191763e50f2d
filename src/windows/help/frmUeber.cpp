#include "windows/help/frmUeber.h"

#include "base/cText.h"
#include "views/help/modAbout.h"
#include "windows/look/modIcon.h"

#include <QBoxLayout>
#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>

namespace {

constexpr int pictureSize = 72;
constexpr int wantedKnocks = 3; // one for each bar of coins in the picture

} // namespace

frmUeber::frmUeber(const QString& name, QWidget* parent) : QDialog(parent)
{
    setWindowTitle(cText::Tr("Über Kontorelle"));
    Build(name);
}

void frmUeber::Build(const QString& name)
{
    m_picture = new QLabel(this);
    m_picture->setPixmap(modIcon::Program().pixmap(pictureSize));
    m_picture->setFocusPolicy(Qt::TabFocus);
    m_picture->setAccessibleName(cText::Tr("Symbol des Programms: ein Heft mit drei Stapeln Münzen"));
    m_picture->installEventFilter(this);
    auto* title = new QLabel(name, this);
    QFont font = title->font();
    font.setPointSizeF(font.pointSizeF() * 1.5);
    font.setBold(true);
    title->setFont(font);
    title->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_answer = new QLabel(this);
    auto* terms = new QLabel(modAbout::Terms(), this);
    terms->setWordWrap(true);
    auto* head = new QLabel(cText::Tr("&Verwendete Bibliotheken und Daten:"), this);
    auto* libraries = new QPlainTextEdit(modAbout::Libraries(), this);
    libraries->setReadOnly(true);
    libraries->setTabChangesFocus(true);
    libraries->setMinimumHeight(fontMetrics().lineSpacing() * 10);
    head->setBuddy(libraries);
    auto* close = new QPushButton(cText::Tr("S&chließen"), this);
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::close);

    auto* names = new QVBoxLayout;
    names->addWidget(title);
    names->addWidget(m_answer);
    names->addStretch();
    auto* top = new QHBoxLayout;
    top->addWidget(m_picture);
    top->addLayout(names, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(terms);
    layout->addWidget(head);
    layout->addWidget(libraries, 1);
    layout->addWidget(close, 0, Qt::AlignRight);
    const int width = fontMetrics().averageCharWidth() * 72;
    resize(width, layout->totalHeightForWidth(width)); // the hint knows less lines than the texts have
    close->setFocus();
}

bool frmUeber::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_picture && event->type() == QEvent::MouseButtonPress) {
        Knock();
        return true;
    }
    if (watched == m_picture && event->type() == QEvent::KeyPress
        && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Space) {
        Knock();
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

// Each knock makes a coin fall; with the last one the purse is needed.
void frmUeber::Knock()
{
    ++m_knocks;
    m_answer->setText(m_knocks == 1 ? cText::Tr("Kling.") : cText::Tr("Kling, kling."));
    if (m_knocks == wantedKnocks) {
        m_knocks = 0;
        m_answer->clear();
        Q_EMIT GameRequested();
    }
}
