#include "base/cText.h"
#include "cli/call/cCliBook.h"
#include "cli/call/modCliCommands.h"
#include "cli/console/cConsoleUser.h"
#include "cli/help/modCliHelp.h"
#include "model/modWord.h"
#include "views/common/modBookNames.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

// The shells ask the program itself, which knows its tables and the names in the book. Where it has nothing to say they
// complete the names of files. A question for a password would not be seen, so there is no terminal to ask at.
const char* const bashScript = R"sh(# bash completion for kontorelle-cli
_kontorelle_cli() {
  local current=${COMP_WORDS[COMP_CWORD]} word
  local IFS=$'\n'
  COMPREPLY=()
  for word in $(kontorelle-cli completion words -- "${COMP_WORDS[@]:1:COMP_CWORD}" 2>/dev/null </dev/null); do
    COMPREPLY+=("$(printf '%q' "$word")")
  done
}
complete -o default -F _kontorelle_cli kontorelle-cli
)sh";

const char* const zshScript = R"sh(#compdef kontorelle-cli
local -a found
found=("${(@f)$(kontorelle-cli completion words -- "${(@Q)words[2,CURRENT]}" 2>/dev/null </dev/null)}")
if [[ -n "${found[1]}" ]]; then
  compadd -a found
else
  _files
fi
)sh";

const char* const fishScript = R"sh(# fish completion for kontorelle-cli
function __kontorelle_cli_words
  set -l typed (commandline -opc)
  kontorelle-cli completion words -- $typed[2..-1] (commandline -ct) 2>/dev/null </dev/null
end
complete -c kontorelle-cli -a '(__kontorelle_cli_words)'
)sh";

// What has been typed so far, the word under the cursor last.
struct cTyped
{
    QString Word;
    QString Previous; // the word before
    QString Database; // of --database, where it stands before
    const cCliCommand* Command = nullptr;
    bool IsFirst = true; // no command is typed yet
    QString First;       // first word of the command
};

const cCliCommand* Find(const QString& name)
{
    const QList<cCliCommand>& all = modCliCommands::All();
    const auto found = std::find_if(all.begin(), all.end(), [&](const cCliCommand& each) { return each.Name == name; });
    return found == all.end() ? nullptr : &*found;
}

cTyped Read(const QStringList& words)
{
    cTyped typed;
    typed.Word = words.isEmpty() ? QString() : words.constLast();
    typed.Previous = words.value(words.size() - 2);
    for (qsizetype i = 0; i + 1 < words.size(); ++i) {
        const QString& word = words.at(i);
        if (word == u"--database" || word == u"--profile") {
            typed.Database = word == u"--database" ? words.at(i + 1) : typed.Database;
            ++i;
        } else if (!word.startsWith(u'-') && typed.IsFirst) {
            typed.IsFirst = false;
            typed.First = word;
            typed.Command = Find(word);
            const cCliCommand* second = i + 2 < words.size() ? Find(word + u' ' + words.at(i + 1)) : nullptr;
            typed.Command = second != nullptr ? second : typed.Command;
        }
    }
    return typed;
}

QStringList CommandWords(const cTyped& typed)
{
    QStringList words;
    for (const cCliCommand& command : modCliCommands::All()) {
        const QString first = command.Name.section(u' ', 0, 0);
        const QString second = command.Name.section(u' ', 1);
        if (typed.IsFirst) {
            words.append(first);
        } else if (first == typed.First && !second.isEmpty() && typed.Previous == first) {
            words.append(second);
        }
    }
    words.removeDuplicates();
    return words;
}

QStringList OptionWords(const cTyped& typed)
{
    QStringList words{u"--database"_s, u"--profile"_s};
    for (const cCliOption& option : typed.Command != nullptr ? typed.Command->Options : QList<cCliOption>()) {
        words.append(u"--"_s + option.Name);
    }
    return words;
}

// The option whose value is typed just now.
QString ValueOf(const cTyped& typed)
{
    if (typed.Command == nullptr || !typed.Previous.startsWith(u"--")) {
        return {};
    }
    const QList<cCliOption>& options = typed.Command->Options;
    const auto option = std::find_if(options.begin(), options.end(), [&](const cCliOption& each) {
        return u"--"_s + each.Name == typed.Previous && !each.Value.isEmpty();
    });
    return option == options.end() ? QString() : option->Name;
}

QStringList NamesInBook(const cTyped& typed, const cCliContext& context, bool isAccount)
{
    const std::unique_ptr<cCliBook> book =
        cCliBook::Open(typed.Database, eCliAccess::Read, context.Ports, context.User);
    if (!book) {
        return {};
    }
    return isAccount ? modBookNames::Accounts(book->Data) : modBookNames::Categories(book->Data);
}

QStringList Words(const cTyped& typed, const cCliContext& context)
{
    const QString option = ValueOf(typed);
    if (option.contains(u"account"_s) || option == u"target") {
        return NamesInBook(typed, context, true);
    }
    if (option.contains(u"category"_s)) {
        return NamesInBook(typed, context, false);
    }
    if (option == u"period" || option == u"interval") {
        return (option == u"period" ? modWord::Periods() : modWord::Intervals()).Shown();
    }
    if (!option.isEmpty()) {
        return {};
    }
    return typed.Word.startsWith(u'-') ? OptionWords(typed) : CommandWords(typed);
}

int RunCompletion(const cCliContext& context)
{
    const QString shell = context.Call.Arguments().constFirst();
    if (shell == u"words") {
        const cTyped typed = Read(context.Call.Arguments().mid(1));
        for (const QString& word : Words(typed, context)) {
            if (word.startsWith(typed.Word, Qt::CaseInsensitive)) {
                modConsole::Out(word + u'\n');
            }
        }
        return modExit::Done;
    }
    const char* script = shell == u"bash" ? bashScript : shell == u"zsh" ? zshScript : fishScript;
    if (script == fishScript && shell != u"fish") {
        modConsole::Error(cText::Tr("Die Shell '{0}' ist nicht bekannt: bash, zsh oder fish.", {shell}));
        return modExit::Usage;
    }
    modConsole::Out(QString::fromLatin1(script));
    return modExit::Done;
}

} // namespace

cCliCommand modCliCommands::CompletionCommand()
{
    return {.Name = u"completion"_s,
            .Arguments = u"(bash | zsh | fish)"_s,
            .Help = cText::Tr("schreibt die Vervollständigung der Befehle für eine Shell"),
            .MinArguments = 1,
            .MaxArguments = Any,
            .Access = eCliAccess::None,
            .Run = RunCompletion};
}
