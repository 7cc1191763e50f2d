#include "windows/book/frmPasswort.h"

#include "base/cText.h"
#include "windows/look/modWrapped.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int second = 1000; // milliseconds
constexpr int columns = 60;  // width of the texts in letters

} // namespace

frmPasswort::frmPasswort(cPasswordTries& tries, cCheck isRight, QWidget* parent)
    : QDialog(parent),
      m_tries(tries),
      m_isRight(std::move(isRight)),
      m_layout(new QVBoxLayout(this)),
      tmrWait(new QTimer(this)),
      m_message(new QLabel(this)),
      m_buttons(new QDialogButtonBox(this))
{
    BuildPrompt();
}

frmPasswort::frmPasswort(cPasswordFlow& flow, QWidget* parent)
    : QDialog(parent),
      m_tries(flow.Tries()),
      m_flow(&flow),
      m_layout(new QVBoxLayout(this)),
      tmrWait(new QTimer(this)),
      m_message(new QLabel(this)),
      m_buttons(new QDialogButtonBox(this))
{
    BuildFlow();
}

frmPasswort::~frmPasswort() = default;

void frmPasswort::BuildPrompt()
{
    m_old = AddField(cText::Tr("&Bitte geben Sie das Passwort der Datenbank ein:"), "old");
    AddShowLetters(cText::Tr("Passwort an&zeigen"));
    AddText(cText::Tr("Passwort vergessen? Eine Datensicherung ohne Passwort lässt sich mit \"kontorelle-cli restore\" "
                      "laden; \"kontorelle-cli password --remove\" entfernt das Passwort dieser Datenbank. Die Datei "
                      "selbst ist nicht verschlüsselt."));
    Finish(cText::Tr("OK"), cText::Tr("Abbrechen"));
    connect(m_do, &QPushButton::clicked, this, &frmPasswort::Try);
}

void frmPasswort::BuildFlow()
{
    AddText(
        cText::Tr("Kontorelle fragt nach dem Passwort, bevor es die Daten zeigt. Das hält neugierige Blicke fern, mehr "
                  "nicht: Die Datei selbst ist nicht verschlüsselt. Wer sie kopieren kann, kann sie mit anderen "
                  "Programmen lesen."));
    const bool hasPassword = m_flow->HasPassword();
    if (hasPassword) {
        m_old = AddField(cText::Tr("&Bisheriges Passwort:"), "old");
    }
    m_new = AddField(cText::Tr("&Neues Passwort:"), "new");
    m_repeated = AddField(cText::Tr("Neues Passwort &wiederholen:"), "repeated");
    AddShowLetters(cText::Tr("Passwörter an&zeigen"));
    if (hasPassword) {
        m_remove = m_buttons->addButton(cText::Tr("Passwort &entfernen"), QDialogButtonBox::DestructiveRole);
        m_remove->setAutoDefault(false);
        connect(m_remove, &QPushButton::clicked, this, &frmPasswort::RemovePassword);
    }
    Finish(hasPassword ? cText::Tr("Passwort än&dern") : cText::Tr("Passwort &setzen"), cText::Tr("Abbrechen"));
    connect(m_do, &QPushButton::clicked, this, &frmPasswort::SetPassword);
}

void frmPasswort::AddText(const QString& text)
{
    m_layout->addWidget(modWrapped::Make(text, columns, this));
}

QLineEdit* frmPasswort::AddField(const QString& label, const char* name)
{
    auto* field = new QLineEdit(this);
    field->setObjectName(QString::fromLatin1(name));
    field->setEchoMode(QLineEdit::Password);
    auto* caption = new QLabel(label, this);
    caption->setBuddy(field);
    m_layout->addWidget(caption);
    m_layout->addWidget(field);
    return field;
}

// After the fields, so that the keys start there.
void frmPasswort::AddShowLetters(const QString& text)
{
    auto* showLetters = new QCheckBox(text, this);
    connect(showLetters, &QCheckBox::toggled, this, &frmPasswort::ShowLetters);
    m_layout->addWidget(showLetters);
    m_layout->addWidget(m_message);
}

void frmPasswort::Finish(const QString& doCaption, const QString& leaveCaption)
{
    setWindowTitle(cText::Tr("Passwortschutz"));
    m_message->setObjectName(u"message"_s);
    m_message->hide();
    m_do = m_buttons->addButton(doCaption, QDialogButtonBox::ActionRole);
    m_do->setDefault(true);
    m_buttons->addButton(leaveCaption, QDialogButtonBox::RejectRole);
    m_layout->addWidget(m_buttons);
    tmrWait->setObjectName(u"tmrWait"_s);
    tmrWait->setInterval(second);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(tmrWait, &QTimer::timeout, this, [this] {
        m_tries.SecondPassed();
        Wait();
    });
    (m_old != nullptr ? m_old : m_new)->setFocus();
    if (m_tries.Left() > 0) {
        Wait();
    }
}

void frmPasswort::ShowLetters(bool isShown)
{
    const QList<QLineEdit*> fields = findChildren<QLineEdit*>();
    for (QLineEdit* field : fields) {
        field->setEchoMode(isShown ? QLineEdit::Normal : QLineEdit::Password);
    }
}

void frmPasswort::Try()
{
    if (m_isRight(m_old->text())) {
        m_tries.NoteRight();
        accept();
        return;
    }
    m_tries.NoteWrong();
    Refuse();
}

void frmPasswort::SetPassword()
{
    Take(m_flow->Set(m_old == nullptr ? QString() : m_old->text(), m_new->text(), m_repeated->text()));
}

void frmPasswort::RemovePassword()
{
    Take(m_flow->Remove(m_old->text()));
}

void frmPasswort::Take(cPasswordFlow::eResult result)
{
    if (result == cPasswordFlow::eResult::Done) {
        accept();
    } else if (result == cPasswordFlow::eResult::WrongPassword) {
        Refuse();
    } else {
        m_new->setFocus();
        m_new->selectAll();
    }
}

void frmPasswort::Refuse()
{
    m_old->selectAll();
    m_old->setFocus();
    Wait();
}

void frmPasswort::Wait()
{
    const int left = m_tries.Left();
    const QString wrong = cText::Tr("Das Passwort ist nicht richtig. Bitte versuchen Sie es noch einmal.");
    m_message->setText(left == 0
                           ? wrong
                           : cText::Tr("Das Passwort ist nicht richtig. Der nächste Versuch ist in {0} s möglich.",
                                       {QString::number(left)}));
    m_message->show();
    m_do->setEnabled(left == 0);
    if (m_remove != nullptr) {
        m_remove->setEnabled(left == 0);
    }
    if (left == 0) {
        tmrWait->stop();
        m_old->setFocus(); // a disabled button may have had it
    } else if (!tmrWait->isActive()) {
        tmrWait->start();
    }
}
