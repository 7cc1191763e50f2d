#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

// Exclamation and Critical tell of a failure. An objection looks like an exclamation, but nothing failed: what was
// typed or chosen cannot be taken, and the user is told what to do instead.
enum class eTone { Information, Question, Objection, Exclamation, Critical };
enum class eAnswer { Yes, No, Cancel };
enum class eButtons { YesNo, YesNoCancel };

struct cQuestion
{
    QString Text;
    QString Title;
    eTone Tone = eTone::Question;
    eButtons Buttons = eButtons::YesNo;
    eAnswer Default = eAnswer::Yes; // what Enter answers: No where a yes destroys something
};

// One item of a fixed list, or a new text where `AllowNew` is set.
struct cChoice
{
    QString Text;
    QString Title;
    QStringList Items;
    QString Proposal;
    bool AllowNew = false;
};

// Several ways to go on, each with a button of its own.
struct cDecision
{
    QString Text;
    QString Title;
    QStringList Options; // German button texts in their order
    int Default = 0;     // what Enter chooses; -1, giving up, where every option destroys something
    eTone Tone = eTone::Question;
};

// Several things of which all, some or none are wanted. All are ticked to start with, so that Enter takes them all.
struct cChecklist
{
    QString Text;
    QString Title;
    QString Take; // the button that takes what is ticked
    QStringList Items;
};

// What a file dialog is for. Each purpose begins in the folder that was chosen for it last.
enum class ePurpose { Statement, Layout, Protocol, Export, Receipt };

// The person in front of the screen (or the command line that stands in for one).
class cUser
{
public:
    cUser() = default;
    cUser(const cUser&) = delete;
    cUser& operator=(const cUser&) = delete;
    virtual ~cUser() = default;

    // Shows a message and waits until it is closed. An empty title is the program's name.
    virtual void Show(eTone tone, const QString& text, const QString& title = {}) = 0;

    // Shows an objection; false, for a caller that is asked whether something is right.
    bool Refuse(const QString& text)
    {
        Show(eTone::Objection, text);
        return false;
    }

    // A failure that a window tells of in its own place. Shows nothing; it is for those who keep a log.
    virtual void Note(const QString& /*operation*/, const QString& /*text*/) {}

    // Cancel, whatever the buttons, when the program ends meanwhile.
    [[nodiscard]] virtual eAnswer Ask(const cQuestion& question) = 0;

    // The chosen or typed text; empty optional when the user gives up.
    [[nodiscard]] virtual std::optional<QString> Choose(const cChoice& choice) = 0;

    // The chosen option, counted from 0; -1 when the user gives up.
    [[nodiscard]] virtual int Decide(const cDecision& decision) = 0;

    // The ticked items, counted from 0; empty optional when the user gives up.
    [[nodiscard]] virtual std::optional<QList<int>> Tick(const cChecklist& list) = 0;

    // Existing files to open. `filter` has the form "Name|*.a;*.b|Name|*.*". Empty when the user gives up.
    [[nodiscard]] virtual QStringList ChooseFiles(const QString& title, const QString& filter, ePurpose purpose) = 0;

    // A path to write to; the user has agreed to replace a file that exists there. `proposal` is a name, or a full path
    // where the folder is known without the purpose. The chosen pattern of the filter gives the ending where none was
    // typed. Empty when the user gives up.
    [[nodiscard]] virtual QString ChooseSavePath(const QString& title, const QString& filter, const QString& proposal,
                                                 ePurpose purpose = ePurpose::Export) = 0;

    // A folder; `current` is shown first. Empty when the user gives up.
    [[nodiscard]] virtual QString ChooseFolder(const QString& title, const QString& current) = 0;
};
