#include "cli/call/cCliBook.h"

#include "cli/console/cConsoleRescue.h"
#include "cli/console/cConsoleUser.h"

namespace {

cBookAccess::eMode Mode(eCliAccess access)
{
    switch (access) {
    case eCliAccess::Write: return cBookAccess::eMode::Write;
    case eCliAccess::Unlock: return cBookAccess::eMode::Unlock;
    case eCliAccess::None:
    case eCliAccess::Read: break;
    }
    return cBookAccess::eMode::Read;
}

} // namespace

cCliBook::cCliBook(std::unique_ptr<cBookAccess> file, cUser& user, const cClock& clock)
    : m_file(std::move(file)),
      m_format(m_file->Configuration()),
      Data(m_file->Data()),
      Tools{Data, m_file->Settings(), m_format, user, clock},
      Statements(Tools)
{
    m_format.CultureChanged();
}

std::unique_ptr<cCliBook> cCliBook::Open(const QString& database, eCliAccess access, const cCliPorts& ports,
                                         cConsoleUser& user)
{
    cConsoleRescue rescue;
    std::unique_ptr<cBookAccess> file =
        cBookAccess::Open(database, Mode(access),
                          {ports.Shell, ports.Registry, user, rescue, ports.Clock, ports.Lock, ports.Version,
                           [&user] { return user.HasFailed(); }});
    return file ? std::unique_ptr<cCliBook>(new cCliBook(std::move(file), user, ports.Clock)) : nullptr;
}
