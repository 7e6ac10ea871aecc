#pragma once

#include <functional>
#include <optional>
#include <string>

#include <sys/types.h>

#include "platform/posix/FileDescriptor.h"

namespace quindle {

/// Reads the file from its beginning, as pread(2) does: the number of bytes, or the negated error number.
/// `attribute` is the file's name. Called on the threads that read.
using ReadFunction =
    std::function<ssize_t(int descriptor, const char* attribute, char* buffer, std::size_t size)>;

/// pread(2) from the beginning of the file.
ssize_t readDescriptor(int descriptor, const char* attribute, char* buffer, std::size_t size);

/// Opens a regular file of `folder`, without ever waiting for a pipe or device in its place: a descriptor, or
/// none and errno; ENOENT for what is not a regular file.
FileDescriptor openRegularFile(int folder, const char* path);

/// Whether the folder is the kernel's. It announces no changes, and its uevents are always of the same moment
/// as its other files.
bool isOfKernel(int folder);

/// Hears of every file before and after it is touched, on the thread that does.
class ReadSteps
{
public:
    virtual ~ReadSteps() = default;

    /// The result that replaces touching the file: a number of bytes or a negated error number. Nothing for a
    /// file that may be touched.
    virtual std::optional<ssize_t> insteadOf(const std::string& path, char* buffer, std::size_t size) = 0;

    virtual void begin(const std::string& path) = 0;
    virtual void end(const char* buffer, ssize_t result) = 0;
};

/// Whether something went wrong on the way to the device, so that the value itself may exist. A driver that
/// reports no value or no device (ENODATA, ENODEV) is believed.
bool isAccident(ssize_t result);

} // namespace quindle
