#include "base/cSecret.h"

#include <mutex>
#include <utility>

#ifdef Q_OS_UNIX
#include <sys/resource.h>
#endif

namespace {

// Counts the secrets that are held. With the first one core dumps end, with the last one they come back.
class cCoreDumps
{
public:
    static void Forbid()
    {
        const std::scoped_lock lock(s_mutex);
        if (s_held++ > 0) {
            return;
        }
#ifdef Q_OS_UNIX
        if (getrlimit(RLIMIT_CORE, &s_before) != 0) {
            return;
        }
        rlimit none = s_before;
        none.rlim_cur = 0;
        setrlimit(RLIMIT_CORE, &none);
#endif
    }

    static void Allow()
    {
        const std::scoped_lock lock(s_mutex);
        if (--s_held > 0) {
            return;
        }
#ifdef Q_OS_UNIX
        setrlimit(RLIMIT_CORE, &s_before);
#endif
    }

private:
    static inline std::mutex s_mutex;
    static inline int s_held = 0;
#ifdef Q_OS_UNIX
    static inline rlimit s_before{};
#endif
};

// Through volatile, because a compiler drops writes that nobody reads any more.
void Overwrite(void* from, qsizetype size)
{
    for (volatile char* at = static_cast<char*>(from); size > 0; --size) {
        *at++ = 0;
    }
}

} // namespace

cSecret::cSecret(QStringView text)
{
    if (text.isEmpty()) {
        return;
    }
    m_characters.assign(text.utf16(), text.utf16() + text.size());
    cCoreDumps::Forbid();
}

cSecret::cSecret(cSecret&& other) noexcept : m_characters(std::exchange(other.m_characters, {}))
{
}

cSecret& cSecret::operator=(cSecret&& other) noexcept
{
    if (this == &other) {
        return *this;
    }
    Drop();
    m_characters = std::exchange(other.m_characters, {});
    return *this;
}

cSecret::~cSecret()
{
    Drop();
}

QStringView cSecret::Characters() const
{
    return {m_characters.data(), static_cast<qsizetype>(m_characters.size())};
}

void cSecret::Wipe(QString& text)
{
    if (text.isDetached()) {
        Overwrite(text.data(), 2 * text.size());
    }
    text.clear();
}

void cSecret::Wipe(QByteArray& bytes)
{
    if (bytes.isDetached()) {
        Overwrite(bytes.data(), bytes.size());
    }
    bytes.clear();
}

void cSecret::Drop()
{
    if (m_characters.empty()) {
        return;
    }
    Overwrite(m_characters.data(), 2 * static_cast<qsizetype>(m_characters.size()));
    m_characters.clear();
    cCoreDumps::Allow();
}
