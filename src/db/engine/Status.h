// Errors of the engine as values: what kind, in which file, at what place. The words a person
// reads are made above the engine.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>

namespace norvane::engine
{

enum class ErrorKind {
    None,
    NotFound, // no such file, field, tag or row
    Locked,   // held by another session after all attempts
    ReadOnly, // the file or folder refuses writing
    Damaged,  // bytes that make no sense for the format
    Refused,  // valid, but outside what this engine supports (an expression, a table kind)
    NoSpace,  // disk or quota full
    TooLarge, // a file would grow into its lock bytes
    Gone,     // the file or its folder went away while open
    Misuse,   // wrong handle, a write without its lock
    NoMemory, // this program got no more memory
    Io        // any other failure of the system
};

struct Error {
    ErrorKind kind = ErrorKind::None;
    std::string file;        // path, empty when none is concerned
    std::string detail;      // technical sentence in English
    std::int64_t place = -1; // byte offset or record number in the file, -1 when not known

    explicit operator bool() const { return kind != ErrorKind::None; }
};

// Takes no memory itself.
inline Error noMemory()
{
    return {ErrorKind::NoMemory, {}, "out of memory", -1};
}

// An operation that gives nothing back: ok() or an error.
class [[nodiscard]] Status
{
public:
    Status() = default;
    Status(Error error) : m_error(std::move(error)) {}

    bool ok() const { return m_error.kind == ErrorKind::None; }
    const Error &error() const { return m_error; }

private:
    Error m_error;
};

// A value or an error. REQUIRES: ok() before value().
template <class T>
class [[nodiscard]] Result
{
public:
    Result(T value) : m_value(std::move(value)) {}
    Result(Error error) : m_error(std::move(error)) {}

    bool ok() const { return m_value.has_value(); }
    const Error &error() const { return m_error; }
    Status status() const { return ok() ? Status() : Status(m_error); }
    T &value() { return *m_value; }
    const T &value() const { return *m_value; }
    T &operator*() { return *m_value; }
    const T &operator*() const { return *m_value; }
    T *operator->() { return &*m_value; }
    const T *operator->() const { return &*m_value; }

private:
    std::optional<T> m_value;
    Error m_error;
};

} // namespace norvane::engine
