// An unexpected failure inside a procedure. Procedures do not throw to their callers: guarded()
// catches it, reports it once through gSys.ShowError and gives the procedure's failure value.
#pragma once

#include <QString>

#include <exception>
#include <utility>

class Failure : public std::exception
{
public:
    Failure(int number, QString source, QString description)
        : m_number(number), m_source(std::move(source)), m_description(std::move(description))
    {
    }
    int number() const { return m_number; }
    const QString &source() const { return m_source; }
    const QString &description() const { return m_description; }
    const char *what() const noexcept override { return "Failure"; }

private:
    int m_number;
    QString m_source;
    QString m_description;
};

// Reports the exception being handled under the procedure's name, such as "clsDB_OpenDB".
void reportCurrentException(const char *context);

// Runs the body of a procedure; an exception is reported and the fallback given instead.
template <class T, class Body>
T guarded(const char *context, T fallback, Body &&body)
{
    try {
        return std::forward<Body>(body)();
    } catch (...) {
        reportCurrentException(context);
        return fallback;
    }
}

template <class Body>
void guarded(const char *context, Body &&body)
{
    try {
        std::forward<Body>(body)();
    } catch (...) {
        reportCurrentException(context);
    }
}
