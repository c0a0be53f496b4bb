// Door to the machine: clock, computer name, events, launches. Product code asks host(); tests
// swap members (tests/support/FakeHost.h).
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QLocale>
#include <QString>
#include <QStringList>

#include <functional>

// What a program that was waited for left behind.
struct ProgramResult {
    bool ended = false; // it started, and ended by itself in time
    int exitCode = -1;
    QByteArray output; // standard output
    QByteArray errors; // standard error
};

struct Host {
    std::function<QDateTime()> now;
    // Milliseconds of a clock that nobody sets.
    std::function<qint64()> ticks;
    std::function<QString()> computerName; // as the system gives it
    // Regional settings; American English where the system has none.
    std::function<QLocale()> locale;
    // Lets pending window events through, user input included.
    std::function<void()> pumpEvents;
    // Lets windows repaint but holds user input back (lock waits).
    std::function<void()> repaint;
    std::function<void(bool)> setBusy; // the hourglass
    // Opens a file, folder or web address with its associated program; false when none took it.
    std::function<bool(const QString &item)> open;
    // Starts a program with arguments, never through a shell; false when it did not start.
    std::function<bool(const QString &program, const QStringList &arguments)> launch;
    // The same, and waits for its end, at most that many milliseconds; then it is stopped.
    std::function<ProgramResult(const QString &program, const QStringList &arguments, int patience)>
        run;
    // Starts a program that may go on without us, and looks that many milliseconds whether it
    // fails. False when it did not start, or ended in that time with another exit code than 0.
    std::function<bool(const QString &program, const QStringList &arguments, int patience)>
        handOver;
};

Host machineHost(); // reaches the real machine
// The one host of the process; the graphical layer fills in pumpEvents, repaint, setBusy and open.
Host &host();
