#include "windows/help/frmUpdate.h"

#include "base/cText.h"
#include "windows/look/modIcon.h"
#include "windows/look/modTone.h"
#include "windows/widget/modPlace.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QTimer>

using eState = cUpdateCheck::eState;

namespace {

constexpr int pictureSize = 48;

} // namespace

frmUpdate::frmUpdate(cUpdateCheck& check, QWidget* parent)
    : QDialog(parent),
      m_check(check),
      m_headline(new QLabel(this)),
      m_notesHead(new QLabel(cText::Tr("Was &neu ist:"), this)),
      m_notes(new QPlainTextEdit(this)),
      m_progress(new QProgressBar(this)),
      m_weekly(new QCheckBox(cText::Tr("&Einmal in der Woche von selbst nachsehen"), this))
{
    setWindowTitle(cText::Tr("Nach Updates suchen"));
    Build();
    connect(&m_check, &cUpdateCheck::StateChanged, this, &frmUpdate::ShowState);
    connect(&m_check, &cUpdateCheck::Arrived, m_progress, &QProgressBar::setValue);
    ShowState();
}

void frmUpdate::Build()
{
    QFont font = m_headline->font();
    font.setPointSizeF(font.pointSizeF() * 1.15);
    m_headline->setFont(font);
    m_headline->setWordWrap(true);
    m_headline->setTextFormat(Qt::PlainText);
    m_headline->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_notesHead->setBuddy(m_notes);
    m_notes->setReadOnly(true);
    m_notes->setTabChangesFocus(true);
    m_progress->setAccessibleName(cText::Tr("Fortschritt"));
    m_weekly->setChecked(m_check.Schedule().IsWeekly());
    connect(m_weekly, &QCheckBox::toggled, this, [this](bool isOn) { m_check.Schedule().SetWeekly(isOn); });
    auto* privacy = new QLabel(m_check.Privacy(), this);
    privacy->setWordWrap(true);
    modTone::Use(*privacy, modTone::Quiet);
    auto* picture = new QLabel(this);
    picture->setPixmap(modIcon::Program().pixmap(pictureSize));
    auto* head = new QHBoxLayout;
    head->addWidget(picture, 0, Qt::AlignTop);
    head->addSpacing(fontMetrics().averageCharWidth());
    head->addWidget(m_headline, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(head);
    layout->addSpacing(fontMetrics().height() / 2);
    layout->addWidget(m_progress);
    layout->addWidget(m_notesHead);
    layout->addWidget(m_notes, 1);
    layout->addStretch();
    layout->addWidget(m_weekly);
    layout->addWidget(privacy);
    layout->addWidget(BuildButtons());
}

QWidget* frmUpdate::BuildButtons()
{
    auto* buttons = new QDialogButtonBox(this);
    m_download = buttons->addButton(cText::Tr("&Herunterladen…"), QDialogButtonBox::ActionRole);
    m_again = buttons->addButton(cText::Tr("Noch ein&mal versuchen"), QDialogButtonBox::ActionRole);
    m_skip = buttons->addButton(cText::Tr("Diese Version über&springen"), QDialogButtonBox::ActionRole);
    m_close = buttons->addButton(cText::Tr("S&chließen"), QDialogButtonBox::RejectRole);
    m_close->setDefault(true);
    connect(m_download, &QPushButton::clicked, &m_check, &cUpdateCheck::Download);
    connect(m_again, &QPushButton::clicked, &m_check, &cUpdateCheck::Look);
    connect(m_skip, &QPushButton::clicked, this, &frmUpdate::Skip);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    return buttons;
}

void frmUpdate::ShowState()
{
    const eState state = m_check.State();
    const bool isFound = state == eState::Found;
    const bool isBusy = m_check.IsBusy();
    m_headline->setText(m_check.Headline());
    m_progress->setVisible(isBusy);
    m_progress->setRange(0, state == eState::Loading ? 100 : 0); // without a range while nobody knows how far
    m_progress->setValue(0);
    const QString notes = m_check.Notes();
    m_notesHead->setVisible(!notes.isEmpty());
    m_notes->setVisible(!notes.isEmpty());
    if (m_notes->toPlainText() != notes) {
        m_notes->setPlainText(notes);
    }
    m_download->setVisible(isFound && m_check.CanDownload());
    m_again->setVisible(state == eState::Failed);
    m_skip->setVisible(isFound);
    m_close->setText(isBusy ? cText::Tr("Abbrechen") : isFound ? cText::Tr("S&päter") : cText::Tr("S&chließen"));
    Fit();
}

// As high as what it says: without notes there is little.
void frmUpdate::Fit()
{
    const int line = fontMetrics().height();
    const int width = 34 * line;
    layout()->activate();
    const int height = m_notes->isHidden() ? layout()->totalHeightForWidth(width) : 24 * line;
    const QSize wanted = QSize(width, height).expandedTo(layout()->totalMinimumSize());
    if (m_notes->isHidden() || size().height() < wanted.height()) { // what the user has made larger stays
        resize(modPlace::Fitting(wanted, screen()->availableGeometry()));
    }
}

void frmUpdate::Skip()
{
    m_check.Skip();
    accept();
}

// What has been found stays on the screen when its download is ended.
void frmUpdate::reject()
{
    const bool isLoading = m_check.State() == eState::Loading;
    m_check.Cancel();
    if (!isLoading) {
        QDialog::reject();
    }
}

// Once the window stands there: the look waits for its answer.
void frmUpdate::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (m_check.State() == eState::Fresh) {
        QTimer::singleShot(0, &m_check, &cUpdateCheck::Look);
    }
}
