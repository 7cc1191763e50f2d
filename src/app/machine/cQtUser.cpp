#include "app/machine/cQtUser.h"

#include "app/machine/modQtFilter.h"
#include "base/cText.h"

#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

QMessageBox::Icon Icon(eTone tone)
{
    switch (tone) {
    case eTone::Information: return QMessageBox::Information;
    case eTone::Question: return QMessageBox::Question;
    case eTone::Objection:
    case eTone::Exclamation: return QMessageBox::Warning;
    case eTone::Critical: return QMessageBox::Critical;
    }
    return QMessageBox::NoIcon;
}

// A field that has just completed what was typed keeps the first Enter for itself; here it answers the question.
class cEnterAnswers final : public QObject
{
public:
    explicit cEnterAnswers(QDialog& dialog) : QObject(&dialog), m_dialog(dialog) {}

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const int key = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent*>(event)->key() : 0;
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            m_dialog.accept();
            return true;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QDialog& m_dialog;
};

QString TitleOr(const QString& title)
{
    return title.isEmpty() ? u"Kontorelle"_s : title;
}

} // namespace

// One cause may make many operations fail, and some while its box is open: what was just told is not told again before
// the user can act. The first line of a failure names its operation.
void cQtUser::Show(eTone tone, const QString& text, const QString& title)
{
    const QString cause = text.section(u'\n', text.startsWith(u"ERROR: "_s) ? 1 : 0);
    if (tone == eTone::Critical && !cause.isEmpty() && cause == m_told) {
        return;
    }
    m_told = cause;
    QMessageBox box(Icon(tone), TitleOr(title), text, QMessageBox::NoButton, QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText); // names and file paths may look like markup
    box.addButton(cText::Tr("OK"), QMessageBox::AcceptRole);
    box.exec();
    QMetaObject::invokeMethod(
        &m_turn,
        [this, cause] {
            if (m_told == cause) { // else a later box is still open
                m_told.clear();
            }
        },
        Qt::QueuedConnection);
}

eAnswer cQtUser::Ask(const cQuestion& question)
{
    QMessageBox box(Icon(question.Tone), TitleOr(question.Title), question.Text, QMessageBox::NoButton,
                    QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    QPushButton* yes = box.addButton(cText::Tr("&Ja"), QMessageBox::YesRole);
    QPushButton* no = box.addButton(cText::Tr("&Nein"), QMessageBox::NoRole);
    QPushButton* cancel = no;
    if (question.Buttons == eButtons::YesNoCancel) {
        cancel = box.addButton(cText::Tr("Abbrechen"), QMessageBox::RejectRole);
    }
    box.setEscapeButton(cancel);
    box.setDefaultButton(question.Default == eAnswer::Yes ? yes : question.Default == eAnswer::No ? no : cancel);
    box.exec();
    if (box.clickedButton() == yes) {
        return eAnswer::Yes;
    }
    return box.clickedButton() == no ? eAnswer::No : eAnswer::Cancel;
}

std::optional<QString> cQtUser::Choose(const cChoice& choice)
{
    QInputDialog dialog(QApplication::activeWindow());
    dialog.setWindowTitle(TitleOr(choice.Title));
    dialog.setLabelText(choice.Text);
    dialog.setOkButtonText(cText::Tr("OK"));
    dialog.setCancelButtonText(cText::Tr("Abbrechen"));
    dialog.setComboBoxItems(choice.Items);
    dialog.setComboBoxEditable(choice.AllowNew);
    dialog.setTextValue(choice.Proposal);
    if (auto* items = dialog.findChild<QComboBox*>(); items != nullptr) {
        items->installEventFilter(new cEnterAnswers(dialog));
    }
    // Room for the title as well, which the layout does not count.
    dialog.resize(dialog.fontMetrics().averageCharWidth() * 60, dialog.sizeHint().height());
    if (dialog.exec() != QDialog::Accepted || dialog.textValue().trimmed().isEmpty()) {
        return std::nullopt;
    }
    return dialog.textValue().trimmed();
}

int cQtUser::Decide(const cDecision& decision)
{
    QMessageBox box(Icon(decision.Tone), TitleOr(decision.Title), decision.Text, QMessageBox::NoButton,
                    QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    QList<QPushButton*> options;
    for (const QString& option : decision.Options) {
        options.append(box.addButton(option, QMessageBox::AcceptRole));
    }
    QPushButton* cancel = box.addButton(cText::Tr("Abbrechen"), QMessageBox::RejectRole);
    box.setEscapeButton(cancel);
    box.setDefaultButton(options.value(decision.Default, cancel));
    box.exec();
    return static_cast<int>(options.indexOf(qobject_cast<QPushButton*>(box.clickedButton())));
}

std::optional<QList<int>> cQtUser::Tick(const cChecklist& list)
{
    QDialog dialog(QApplication::activeWindow());
    dialog.setWindowTitle(TitleOr(list.Title));
    auto* text = new QLabel(list.Text, &dialog);
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    auto* items = new QListWidget(&dialog);
    items->setAccessibleName(TitleOr(list.Title));
    items->setWordWrap(true);
    for (const QString& item : list.Items) {
        (new QListWidgetItem(item, items))->setCheckState(Qt::Checked);
    }
    auto* buttons = new QDialogButtonBox(&dialog);
    buttons->addButton(list.Take, QDialogButtonBox::AcceptRole)->setDefault(true);
    buttons->addButton(cText::Tr("Abbrechen"), QDialogButtonBox::RejectRole);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    auto* layout = new QVBoxLayout(&dialog);
    layout->addWidget(text);
    layout->addWidget(items, 1);
    layout->addWidget(buttons);
    dialog.resize(dialog.fontMetrics().averageCharWidth() * 100, dialog.sizeHint().height());
    if (dialog.exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    QList<int> ticked;
    for (int row = 0; row < items->count(); ++row) {
        if (items->item(row)->checkState() == Qt::Checked) {
            ticked.append(row);
        }
    }
    return ticked;
}

QStringList cQtUser::ChooseFiles(const QString& title, const QString& filter, ePurpose purpose)
{
    const QStringList paths = QFileDialog::getOpenFileNames(QApplication::activeWindow(), title, m_folders.For(purpose),
                                                            modQtFilter::FromPairs(filter));
    if (!paths.isEmpty()) {
        m_folders.Keep(purpose, paths.constFirst());
    }
    return paths;
}

QString cQtUser::ChooseSavePath(const QString& title, const QString& filter, const QString& proposal, ePurpose purpose)
{
    QFileDialog dialog(QApplication::activeWindow(), title);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilter(modQtFilter::FromPairs(filter));
    dialog.setDefaultSuffix(modQtFilter::FirstEnding(filter));
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&dialog, &filter](const QString& chosen) {
        dialog.setDefaultSuffix(modQtFilter::ChosenEnding(filter, chosen));
    });
    const QFileInfo proposed(proposal);
    const bool isPlaceGiven = proposed.isAbsolute();
    dialog.setDirectory(isPlaceGiven ? proposed.absolutePath() : m_folders.For(purpose));
    dialog.selectFile(proposed.fileName());
    const QString path = dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
    if (!path.isEmpty() && !isPlaceGiven) {
        m_folders.Keep(purpose, path);
    }
    return path;
}

QString cQtUser::ChooseFolder(const QString& title, const QString& current)
{
    return QFileDialog::getExistingDirectory(QApplication::activeWindow(), title, current);
}
