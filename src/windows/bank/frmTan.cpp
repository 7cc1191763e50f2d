#include "windows/bank/frmTan.h"

#include "base/cText.h"
#include "views/bank/cApprovalWait.h"
#include "views/bank/modBankQuestion.h"
#include "windows/bank/cFlickerView.h"
#include "windows/bank/cTanPictureView.h"
#include "windows/bank/modBankHead.h"
#include "windows/bank/modSecretField.h"
#include "windows/widget/cFormScroll.h"
#include "windows/widget/modPlace.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QSlider>
#include <QTimer>
#include <QValidator>

#include <functional>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int second = 1000; // milliseconds

// Lets only in what can be part of the TAN.
class cTanValidator final : public QValidator
{
public:
    cTanValidator(const cTanEntry& entry, QObject* parent) : QValidator(parent), m_entry(entry) {}

    State validate(QString& typed, int& cursor) const override
    {
        return m_entry.Fit(typed, cursor) ? Acceptable : Invalid;
    }

private:
    const cTanEntry& m_entry;
};

// Sliders below each other, with their labels in front. Where they were left is kept when the window closes: a write
// to the book on the way would make the bars stutter.
class cDials
{
public:
    cDials(cTanEntry& entry, QDialog& window, QGridLayout& grid) : m_entry(entry), m_window(window), m_grid(grid) {}

    QSlider* Add(cTanEntry::eDial dial, const std::function<void(int)>& apply)
    {
        auto* label = new QLabel;
        auto* slider = new QSlider(Qt::Horizontal);
        const cTanEntry::cRange range = cTanEntry::Range(dial);
        slider->setRange(range.Least, range.Most);
        slider->setPageStep(5);
        slider->setValue(m_entry.Value(dial));
        label->setBuddy(slider);
        label->setText(cTanEntry::Label(dial, range.Most)); // the widest
        label->setMinimumWidth(label->sizeHint().width());
        const auto show = [label, dial, apply](int value) {
            label->setText(cTanEntry::Label(dial, value));
            apply(value);
        };
        QObject::connect(slider, &QSlider::valueChanged, slider, show);
        QObject::connect(&m_window, &QDialog::finished, slider,
                         [&entry = m_entry, dial, slider] { entry.SetValue(dial, slider->value()); });
        show(slider->value());
        const int row = m_grid.rowCount();
        m_grid.addWidget(label, row, 0);
        m_grid.addWidget(slider, row, 1);
        return slider;
    }

private:
    cTanEntry& m_entry;
    QDialog& m_window;
    QGridLayout& m_grid;
};

} // namespace

frmTan::frmTan(cTanEntry& entry, QWidget* parent) : QDialog(parent)
{
    BuildEntry(entry);
}

frmTan::frmTan(cApprovalWait& wait, QWidget* parent) : QDialog(parent), m_wait(&wait)
{
    BuildWait(wait);
    StartWait();
}

frmTan::~frmTan() = default;

void frmTan::BuildEntry(cTanEntry& entry)
{
    setWindowTitle(cText::Tr("TAN eingeben"));
    auto* form = new QWidget;
    auto* upper = new QVBoxLayout(form);
    upper->setContentsMargins(0, 0, 0, 0);
    upper->addWidget(modBankHead::Make(entry.Question().Bank, entry.Way(), form));
    upper->addWidget(Words(entry.Words()));
    const bool isPicture = entry.Question().Display == eTanDisplay::Picture; // which may turn out to be none
    if (const QString hint = entry.Hint(); !hint.isEmpty() && !isPicture) {
        upper->addWidget(modBankHead::Text(hint, form));
    }
    switch (entry.Question().Display) {
    case eTanDisplay::Flicker: BuildFlicker(entry, *upper); break;
    case eTanDisplay::Picture: BuildPicture(entry, *upper); break;
    case eTanDisplay::Text: break;
    }
    upper->addStretch();

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new cFormScroll(form, this), 1);
    BuildField(entry, *layout);
    layout->addWidget(Buttons(cText::Tr("TAN &senden"), true));
    m_do->setEnabled(false);
    connect(m_field, &QLineEdit::textChanged, m_do,
            [this](const QString& typed) { m_do->setEnabled(!typed.isEmpty()); });
    m_field->setFocus();
    resize(modPlace::Fitting(sizeHint(), screen()->availableGeometry()));
}

void frmTan::BuildFlicker(cTanEntry& entry, QBoxLayout& layout)
{
    auto* bars = new cFlickerView(entry.Question().Flicker);
    layout.addWidget(bars, 0, Qt::AlignHCenter);
    auto* grid = new QGridLayout;
    cDials dials(entry, *this, *grid);
    m_width = dials.Add(cTanEntry::eDial::FlickerWidth, [this, bars](int value) {
        bars->SetWidth(value);
        Fit();
    });
    connect(m_width, &QSlider::sliderReleased, this, &frmTan::Fit);
    dials.Add(cTanEntry::eDial::FlickerSpeed, [bars](int value) { bars->SetSpeed(value); });
    layout.addLayout(grid);
    auto* turned = new QCheckBox(cText::Tr("Auf dem &Kopf"));
    turned->setChecked(entry.IsTurned());
    bars->SetTurned(entry.IsTurned());
    connect(turned, &QCheckBox::toggled, bars, [&entry, bars](bool isTurned) {
        entry.SetTurned(isTurned);
        bars->SetTurned(isTurned);
    });
    layout.addWidget(turned);
    QLabel* byHand = modBankHead::Text(entry.ByHand(), this);
    byHand->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    byHand->setVisible(!entry.ByHand().isEmpty());
    layout.addWidget(byHand);
}

void frmTan::BuildPicture(cTanEntry& entry, QBoxLayout& layout)
{
    auto* picture = new cTanPictureView(entry.Question().Picture);
    if (!picture->HasPicture()) {
        delete picture;
        layout.addWidget(modBankHead::Text(modBankQuestion::Unreadable(), this));
        return;
    }
    layout.addWidget(modBankHead::Text(entry.Hint(), this));
    layout.addWidget(picture, 1);
    auto* grid = new QGridLayout;
    m_width = cDials(entry, *this, *grid).Add(cTanEntry::eDial::PictureWidth, [this, picture](int value) {
        picture->SetWidth(value);
        Fit();
    });
    connect(m_width, &QSlider::sliderReleased, this, &frmTan::Fit);
    layout.addLayout(grid);
}

void frmTan::BuildField(const cTanEntry& entry, QBoxLayout& layout)
{
    m_field = new QLineEdit(this);
    m_field->setObjectName(u"tan"_s);
    modSecretField::Prepare(*m_field);
    m_field->setValidator(new cTanValidator(entry, m_field));
    m_field->setPlaceholderText(entry.Form());
    m_field->setAccessibleDescription(entry.Form());
    auto* label = new QLabel(entry.Question().Label, this);
    label->setBuddy(m_field);
    auto* row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(m_field, 1);
    layout.addLayout(row);
}

void frmTan::BuildWait(const cApprovalWait& wait)
{
    setWindowTitle(cText::Tr("Freigabe"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(modBankHead::Make(wait.Approval().Bank, wait.Way(), this));
    layout->addWidget(Words(wait.Words()));
    m_timeLeft = modBankHead::Text(wait.TimeLeft(), this);
    layout->addWidget(m_timeLeft);
    m_step = modBankHead::Text(wait.Step(), this);
    layout->addWidget(m_step);
    layout->addStretch();
    layout->addWidget(Buttons(cText::Tr("Jetzt &prüfen"), false));
    connect(m_do, &QPushButton::clicked, this, [this] {
        m_wait->AskSoon();
        AskWhenDue();
    });
    tmrWait = new QTimer(this);
    tmrWait->setObjectName(u"tmrWait"_s);
    tmrWait->setInterval(second);
    connect(tmrWait, &QTimer::timeout, this, &frmTan::AskWhenDue);
}

// The bank's own words, which can be marked, copied and read line by line.
QLabel* frmTan::Words(const QString& words)
{
    QLabel* label = modBankHead::Text(words, this);
    label->setObjectName(u"words"_s);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setAccessibleDescription(words);
    return label;
}

QDialogButtonBox* frmTan::Buttons(const QString& doCaption, bool closes)
{
    auto* buttons = new QDialogButtonBox(this);
    m_do = buttons->addButton(doCaption, closes ? QDialogButtonBox::AcceptRole : QDialogButtonBox::ActionRole);
    m_do->setDefault(true);
    buttons->addButton(cText::Tr("Abbrechen"), QDialogButtonBox::RejectRole)->setAutoDefault(false);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    return buttons;
}

void frmTan::StartWait()
{
    tmrWait->start();
    ShowWait();
}

void frmTan::ShowWait()
{
    m_timeLeft->setText(m_wait->TimeLeft());
    m_timeLeft->setVisible(!m_wait->TimeLeft().isEmpty());
    m_step->setText(m_wait->Step());
    m_do->setVisible(m_wait->HasButton());
    m_do->setEnabled(m_wait->IsButtonOn());
}

void frmTan::AskWhenDue()
{
    ShowWait();
    if (m_wait->IsDue()) {
        tmrWait->stop();
        Q_EMIT BankToBeAsked();
    }
}

// The new size is known once the layouts have been told of it. The slider does not move away under the mouse.
void frmTan::Fit()
{
    if (isVisible()) {
        QTimer::singleShot(0, this, [this] {
            const QSize fitting = modPlace::Fitting(sizeHint(), screen()->availableGeometry());
            resize(m_width->isSliderDown() ? size().expandedTo(fitting) : fitting);
        });
    }
}

// Whatever way the window is closed, nothing of the TAN stays in it.
void frmTan::done(int result)
{
    if (tmrWait != nullptr) {
        tmrWait->stop();
    }
    if (m_field != nullptr) {
        if (result == Accepted) {
            m_tan = modSecretField::Take(*m_field);
        }
        modSecretField::Clear(*m_field);
    }
    QDialog::done(result);
}
