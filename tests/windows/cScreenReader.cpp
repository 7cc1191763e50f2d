#include "cScreenReader.h"

#include <QAccessible>
#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCall>
#include <QDBusVariant>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QThread>
#include <QVariantList>

#include <functional>
#include <utility>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString rootPath = u"/org/a11y/atspi/accessible/root"_s;
const QString object = u"org.a11y.atspi.Accessible"_s;
const QString text = u"org.a11y.atspi.Text"_s;
const QString value = u"org.a11y.atspi.Value"_s;

// Does something in a thread of its own, while this one goes on to answer.
void Aside(const std::function<void()>& work)
{
    QEventLoop loop;
    const std::unique_ptr<QThread> thread(QThread::create(work));
    QObject::connect(thread.get(), &QThread::finished, &loop, &QEventLoop::quit);
    thread->start();
    loop.exec();
    thread->wait();
}

// An object of a program: name on the bus and path.
using cPlace = std::pair<QString, QString>;

QList<cPlace> Places(const QDBusArgument& list)
{
    QList<cPlace> places;
    list.beginArray();
    while (!list.atEnd()) {
        QString program;
        QDBusObjectPath path;
        list.beginStructure();
        list >> program >> path;
        list.endStructure();
        places.append({program, path.path()});
    }
    list.endArray();
    return places;
}

// Questions about many objects are on their way at the same time.
class cQuestion
{
public:
    cQuestion(const QDBusConnection& bus, const cPlace& place, const QString& interface, const QString& function,
              const QVariantList& arguments = {})
        : m_call(QDBusPendingCall::fromError({}))
    {
        QDBusMessage message = QDBusMessage::createMethodCall(place.first, place.second, interface, function);
        message.setArguments(arguments);
        m_call = bus.asyncCall(message);
    }

    static cQuestion Property(const QDBusConnection& bus, const cPlace& place, const QString& interface,
                              const QString& name)
    {
        return {bus, place, u"org.freedesktop.DBus.Properties"_s, u"Get"_s, {interface, name}};
    }

    // Empty for an object that does not answer this.
    [[nodiscard]] QVariant Answer()
    {
        m_call.waitForFinished();
        const QVariantList arguments = m_call.reply().arguments();
        if (m_call.isError() || arguments.isEmpty()) {
            return {};
        }
        const QVariant& first = arguments.first();
        return first.canConvert<QDBusVariant>() ? first.value<QDBusVariant>().variant() : first;
    }

private:
    QDBusPendingCall m_call;
};

enum eRelation { LabelledBy = 2 };

// The objects whose names are this one's label.
QStringList Labels(const QVariant& told)
{
    QStringList labels;
    const auto relations = told.value<QDBusArgument>();
    relations.beginArray();
    while (!relations.atEnd()) {
        quint32 kind = 0;
        relations.beginStructure();
        relations >> kind;
        for (const cPlace& place : Places(relations)) {
            labels += kind == LabelledBy ? QStringList(place.second) : QStringList();
        }
        relations.endStructure();
    }
    relations.endArray();
    return labels;
}

struct cQuestions
{
    cQuestion Role, Name, Description, Labels, Children, Text, Value;

    cQuestions(const QDBusConnection& bus, const cPlace& place)
        : Role(bus, place, object, u"GetRoleName"_s),
          Name(cQuestion::Property(bus, place, object, u"Name"_s)),
          Description(cQuestion::Property(bus, place, object, u"Description"_s)),
          Labels(bus, place, object, u"GetRelationSet"_s),
          Children(bus, place, object, u"GetChildren"_s),
          Text(bus, place, text, u"GetText"_s, {0, -1}),
          Value(cQuestion::Property(bus, place, value, u"CurrentValue"_s))
    {
    }

    void Answer(cTold& told)
    {
        told.Role = Role.Answer().toString();
        told.Name = Name.Answer().toString();
        told.Description = Description.Answer().toString();
        told.Text = Text.Answer().toString();
        told.Value = Value.Answer().toString();
        told.Labels = ::Labels(Labels.Answer());
        for (const cPlace& child : Places(Children.Answer().value<QDBusArgument>())) {
            told.Children.append(child.second);
        }
    }
};

quint64 States(const QVariant& told)
{
    QList<quint32> halves;
    if (told.canConvert<QDBusArgument>()) {
        told.value<QDBusArgument>() >> halves;
    }
    return halves.value(0) | (static_cast<quint64>(halves.value(1)) << 32U);
}

} // namespace

bool cScreenReader::Join()
{
    QAccessible::setRootObject(qApp); // the toolkit joins the bus when it has something to tell
    Aside([this] {
        const cPlace launcher(u"org.a11y.Bus"_s, u"/org/a11y/bus"_s);
        const QString address =
            cQuestion(QDBusConnection::sessionBus(), launcher, u"org.a11y.Bus"_s, u"GetAddress"_s).Answer().toString();
        m_bus = QDBusConnection::connectToBus(address, u"screen reader"_s);
        if (!m_bus.isConnected()) {
            m_fault = u"no bus at '%1': %2"_s.arg(address, m_bus.lastError().message());
            return;
        }
        const cPlace registry(u"org.a11y.atspi.Registry"_s, rootPath);
        const QDeadlineTimer patience(30000);
        while (m_program.isEmpty() && !patience.hasExpired()) {
            const QList<cPlace> programs =
                Places(cQuestion(m_bus, registry, object, u"GetChildren"_s).Answer().value<QDBusArgument>());
            m_program = programs.isEmpty() ? QString() : programs.first().first;
        }
        m_fault = m_program.isEmpty() ? u"the program has not announced itself"_s : QString();
    });
    return m_fault.isEmpty();
}

cToldWindow cScreenReader::Read() const
{
    cToldWindow told;
    Aside([&] { told = ReadAll(); });
    return told;
}

// Level by level; what is hidden is passed over with all that is in it.
cToldWindow cScreenReader::ReadAll() const
{
    cToldWindow all;
    QStringList paths{rootPath};
    while (!paths.isEmpty()) {
        std::vector<cQuestion> states;
        for (const QString& path : std::as_const(paths)) {
            states.emplace_back(m_bus, cPlace(m_program, path), object, u"GetState"_s);
        }
        std::vector<std::pair<cTold, cQuestions>> level;
        for (size_t i = 0; i < states.size(); ++i) {
            cTold told;
            told.Path = paths.at(static_cast<qsizetype>(i));
            told.States = States(states.at(i).Answer());
            if (told.Is(cTold::Visible) || told.Is(cTold::Showing)) {
                level.emplace_back(told, cQuestions(m_bus, cPlace(m_program, told.Path)));
            }
        }
        paths.clear();
        for (auto& [told, questions] : level) {
            questions.Answer(told);
            all.insert(told.Path, told);
            paths += told.Children;
        }
        paths.removeIf([&](const QString& path) { return all.contains(path); });
        paths.removeDuplicates();
    }
    return all;
}
