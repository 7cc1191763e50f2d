#pragma once

#include <QByteArray>
#include <QString>
#include <QStringView>

#include <vector>

// A PIN or a TAN while it is needed. It cannot be printed, copied by accident or compared; its memory is overwritten
// when it is dropped, and as long as one is held the process leaves no core dump behind.
class cSecret
{
public:
    cSecret() = default;
    explicit cSecret(QStringView text);
    cSecret(cSecret&& other) noexcept;
    cSecret& operator=(cSecret&& other) noexcept;
    cSecret(const cSecret&) = delete;
    cSecret& operator=(const cSecret&) = delete;
    ~cSecret();

    // The same once more, for a caller that keeps it longer.
    [[nodiscard]] cSecret Copy() const { return cSecret(Characters()); }

    [[nodiscard]] bool IsEmpty() const { return m_characters.empty(); }
    // Valid as long as the secret. What is made of it is to be overwritten with Wipe.
    [[nodiscard]] QStringView Characters() const;

    // Overwrites a text or bytes that held a secret and that nobody else shares; those of others are left alone.
    static void Wipe(QString& text);
    static void Wipe(QByteArray& bytes);

private:
    void Drop();

    std::vector<char16_t> m_characters;
};
