#include "cli/call/cCliCall.h"

#include "base/cText.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

const QList<cCliOption>& GlobalOptions()
{
    static const QList<cCliOption> options{{u"database"_s, u"DATEI"_s, {}},
                                           {u"profile"_s, u"ORDNER"_s, {}},
                                           {u"help"_s, {}, {}},
                                           {u"version"_s, {}, {}},
                                           {u"debug-info"_s, {}, {}}};
    return options;
}

const cCliOption* FindIn(const QList<cCliOption>& options, const QString& name)
{
    const auto found =
        std::find_if(options.begin(), options.end(), [&](const cCliOption& option) { return option.Name == name; });
    return found == options.end() ? nullptr : &*found;
}

const cCliCommand* FindCommand(const QList<cCliCommand>& commands, const QString& name)
{
    const auto found = std::find_if(commands.begin(), commands.end(),
                                    [&](const cCliCommand& command) { return command.Name == name; });
    return found == commands.end() ? nullptr : &*found;
}

} // namespace

cCliCall cCliCall::Parse(const QStringList& arguments, const QList<cCliCommand>& commands)
{
    cCliCall call;
    QStringList rest = arguments;
    bool takesOptions = true;
    while (!rest.isEmpty() && call.m_error.isEmpty()) {
        const QString text = rest.takeFirst();
        if (takesOptions && text == "--"_L1) {
            takesOptions = false;
        } else if (takesOptions && text.startsWith("--"_L1)) {
            call.TakeOption(text.mid(2), rest);
        } else {
            call.TakeArgument(text, commands);
        }
    }
    call.m_wantsHelp = call.m_wantsHelp || call.Has(u"help"_s);
    if (call.m_error.isEmpty() && !call.m_wantsHelp) {
        call.CheckOptions();
        call.CheckCounts();
    }
    return call;
}

const cCliOption* cCliCall::FindOption(const QString& name) const
{
    const cCliOption* found = FindIn(GlobalOptions(), name);
    return found == nullptr && m_command != nullptr ? FindIn(m_command->Options, name) : found;
}

void cCliCall::TakeOption(const QString& text, QStringList& rest)
{
    const QString name = text.section(u'=', 0, 0);
    const bool hasValue = text.contains(u'=');
    const cCliOption* option = FindOption(name);
    if (option == nullptr) {
        m_error = m_command == nullptr
            ? cText::Tr("Unbekannte Option '--{0}' vor dem Befehl.", {name})
            : cText::Tr("Der Befehl '{0}' kennt die Option '--{1}' nicht.", {m_command->Name, name});
        return;
    }
    if (option->Value.isEmpty()) {
        m_error = hasValue ? cText::Tr("Die Option '--{0}' hat keinen Wert.", {name}) : QString();
        m_options[name];
        return;
    }
    if (!hasValue && rest.isEmpty()) {
        m_error = cText::Tr("Nach '--{0}' fehlt {1}.", {name, option->Value});
        return;
    }
    const QString value = hasValue ? text.section(u'=', 1) : rest.takeFirst();
    if (value.isEmpty() && !option->MayBeEmpty) {
        m_error = cText::Tr("Nach '--{0}' fehlt {1}.", {name, option->Value});
    }
    m_options[name].append(value);
}

void cCliCall::TakeArgument(const QString& text, const QList<cCliCommand>& commands)
{
    if (TakeSecondWord(text, commands)) {
        return;
    }
    if (m_wantsHelp || m_command != nullptr) {
        m_arguments.append(text);
        return;
    }
    if (IsHelpWord(text)) {
        m_wantsHelp = true;
        return;
    }
    m_command = FindCommand(commands, text);
    if (m_command == nullptr) {
        m_error = cText::Tr("Den Befehl '{0}' gibt es nicht.", {text});
    }
}

bool cCliCall::IsHelpWord(const QString& text)
{
    return text == "hilfe"_L1 || text == "help"_L1 || text == "-h"_L1;
}

bool cCliCall::TakeSecondWord(const QString& text, const QList<cCliCommand>& commands)
{
    const cCliCommand* command =
        m_command != nullptr && m_arguments.isEmpty() ? FindCommand(commands, m_command->Name + u' ' + text) : nullptr;
    m_command = command != nullptr ? command : m_command;
    return command != nullptr;
}

// Options that stood between the two words of a command were read as those of the first word.
void cCliCall::CheckOptions()
{
    const QStringList names = m_options.keys();
    for (const QString& name : names) {
        if (m_command != nullptr && FindOption(name) == nullptr) {
            m_error = cText::Tr("Der Befehl '{0}' kennt die Option '--{1}' nicht.", {m_command->Name, name});
        }
    }
}

void cCliCall::CheckCounts()
{
    if (!m_error.isEmpty()) {
        return;
    }
    if (m_command == nullptr) {
        m_error = cText::Tr("Es fehlt der Befehl.");
    } else if (m_arguments.size() < m_command->MinArguments) {
        m_error = cText::Tr("Nach '{0}' fehlt {1}.", {m_command->Name, m_command->Arguments});
    } else if (m_arguments.size() > m_command->MaxArguments) {
        m_error = cText::Tr("Mit '{0}' kann der Befehl '{1}' nichts anfangen.",
                            {m_arguments.at(m_command->MaxArguments), m_command->Name});
    }
}

eCliAccess cCliCall::Access() const
{
    const auto hasAny = [this](const QStringList& options) {
        return std::any_of(options.begin(), options.end(), [this](const QString& option) { return Has(option); });
    };
    const bool onlyReads =
        hasAny(m_command->ReadsWith) || (!m_command->WritesWith.isEmpty() && !hasAny(m_command->WritesWith));
    return onlyReads ? eCliAccess::Read : m_command->Access;
}

QString cCliCall::Value(const QString& option) const
{
    const QStringList values = m_options.value(option);
    return values.isEmpty() ? QString() : values.constLast();
}
