#pragma once

#include <utility>
#include <vector>

#include <QStringList>

#include "platform/DetachedPrograms.h"
#include "platform/Notifier.h"

namespace quindle {

/// Keeps what was asked for, a line each.
class FakeNotifier : public Notifier
{
public:
    QStringList lines;

    void show(const Notification& notification) override
    {
        lines.append(notification.title + QStringLiteral(": ") + notification.text);
    }
    void withdraw() override { lines.append(QStringLiteral("withdraw")); }
};

/// Answers when the test says so.
class FakePowerManagers : public PowerManagers
{
public:
    std::vector<std::function<void(const QString& desktop)>> questions;

    void ask(std::function<void(const QString& desktop)> answered) override
    {
        questions.push_back(std::move(answered));
    }

    void answer(const QString& desktop = {})
    {
        for (const auto& answered : std::exchange(questions, {}))
            answered(desktop);
    }
};

class FakeCommandRunner : public CommandRunner
{
public:
    QStringList lines;
    bool canRun = true;

    bool run(const QString& command, const QStringList& arguments) override
    {
        lines.append(command + QStringLiteral(" | ") + arguments.join(u' '));
        return canRun;
    }
};

} // namespace quindle
