#pragma once

#include <functional>

// Shows how far a longer step has come and lets the user stop it.
class cProgress
{
public:
    cProgress() = default;
    cProgress(const cProgress&) = delete;
    cProgress& operator=(const cProgress&) = delete;
    virtual ~cProgress() = default;

    // Starts a new run of `maximum` steps.
    virtual void showProgressBar(int maximum) = 0;

    // Counts `steps` more and gives the user interface a chance to draw.
    virtual void addProgressValue(int steps) = 0;

    // Does work that cannot say how far it is, on another thread where somebody is watching. What it touches must not
    // be touched by anybody else meanwhile.
    virtual void Run(const std::function<void()>& work) { work(); }

    // The run is over; what follows may be a question.
    virtual void hideProgressBar() = 0;

    // True once the user has asked to stop; what is already written stays.
    [[nodiscard]] virtual bool IsCancelled() const = 0;
};

// For callers without anybody watching.
class cNoProgress final : public cProgress
{
public:
    void showProgressBar(int /*maximum*/) override {}
    void addProgressValue(int /*steps*/) override {}
    void hideProgressBar() override {}
    [[nodiscard]] bool IsCancelled() const override { return false; }
};
