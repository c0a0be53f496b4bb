#include "engine/FailingCalls.h"

#include <cerrno>
#include <cstdarg>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace enginetest::failing
{

namespace
{

Fault current;
int left = 0; // calls until it fails; 0: never
bool failed = false;

bool strikes()
{
    if (left == 0 || --left > 0)
        return false;
    left = current.forEver ? 1 : 0;
    failed = true;
    return true;
}

// True, with errno set, when the call is to fail.
bool fails(bool needsRoom, bool isFolder = false)
{
    if (current.number == 0 || (current.room && !needsRoom) || (current.folder && !isFolder) ||
        !strikes())
        return false;
    errno = current.number;
    return true;
}

std::size_t taken(std::size_t count)
{
    return current.number == 0 && !current.folder && count > 1 && strikes() ? count / 2 : count;
}

} // namespace

void at(int call, const Fault &fault)
{
    current = fault;
    left = call;
    failed = false;
}

bool stop()
{
    left = 0;
    return failed;
}

} // namespace enginetest::failing

using namespace enginetest::failing;

// NOLINTBEGIN(bugprone-reserved-identifier): the names that the linker asks for
extern "C" {

ssize_t __real_pread(int file, void *into, std::size_t count, off_t at);
ssize_t __wrap_pread(int file, void *into, std::size_t count, off_t at)
{
    return fails(false) ? -1 : __real_pread(file, into, taken(count), at);
}

ssize_t __real_pwrite(int file, const void *from, std::size_t count, off_t at);
ssize_t __wrap_pwrite(int file, const void *from, std::size_t count, off_t at)
{
    return fails(true) ? -1 : __real_pwrite(file, from, taken(count), at);
}

int __real_fdatasync(int file);
int __wrap_fdatasync(int file)
{
    return fails(true) ? -1 : __real_fdatasync(file);
}

int __real_fsync(int folder);
int __wrap_fsync(int folder)
{
    return fails(true, true) ? -1 : __real_fsync(folder);
}

int __real_ftruncate(int file, off_t size);
int __wrap_ftruncate(int file, off_t size)
{
    return fails(true) ? -1 : __real_ftruncate(file, size);
}

int __real_fstat(int file, struct stat *info);
int __wrap_fstat(int file, struct stat *info)
{
    return fails(false) ? -1 : __real_fstat(file, info);
}

int __real_fcntl(int file, int command, ...);
int __wrap_fcntl(int file, int command, ...)
{
    va_list arguments;
    va_start(arguments, command);
    auto *range = va_arg(arguments, struct flock *);
    va_end(arguments);
    // the system always lets go of a lock
    const bool failing = fails(false);
    if (failing && range->l_type == F_UNLCK)
        (void)__real_fcntl(file, command, range);
    return failing ? -1 : __real_fcntl(file, command, range);
}

int __real_open(const char *path, int flags, ...);
int __wrap_open(const char *path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = va_arg(arguments, mode_t);
    va_end(arguments);
    return fails((flags & O_CREAT) != 0) ? -1 : __real_open(path, flags, mode);
}

int __real_rename(const char *from, const char *to);
int __wrap_rename(const char *from, const char *to)
{
    return fails(true) ? -1 : __real_rename(from, to);
}

int __real_unlink(const char *path);
int __wrap_unlink(const char *path)
{
    return fails(false) ? -1 : __real_unlink(path);
}
}
// NOLINTEND(bugprone-reserved-identifier)
