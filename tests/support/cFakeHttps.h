#pragma once

#include "base/cHttps.h"

#include <QStringList>

#include <deque>

// A server whose answers are queued beforehand and that remembers what it was asked for.
class cFakeHttps final : public cHttps
{
public:
    [[nodiscard]] cHttpsAnswer Post(const QString& url, const QByteArray& /*body*/) override { return Answer(url); }
    [[nodiscard]] cHttpsAnswer Get(const cHttpsFile& file) override
    {
        const cHttpsAnswer answer = Answer(file.Url);
        if (answer.Bytes.size() > file.MostBytes) {
            return {eHttpsFault::TooLarge, {}, {}};
        }
        if (file.Came) {
            file.Came(answer.Bytes.size());
        }
        return answer;
    }
    void Cancel() override {}

    std::deque<cHttpsAnswer> Answers; // an empty queue cannot be reached
    QStringList Asked;

private:
    [[nodiscard]] cHttpsAnswer Answer(const QString& url)
    {
        Asked.append(url);
        if (Answers.empty()) {
            return {eHttpsFault::NotReachable, {}, {}};
        }
        const cHttpsAnswer answer = Answers.front();
        Answers.pop_front();
        return answer;
    }
};
