"""The build as on a Mac: its compilers and linker stand in for that system's, so CMake says what is compiled and linked."""

import json
import os
import re
import shutil
import subprocess
import sys
import time
from pathlib import Path

import compare_declarations

HERE = Path(__file__).resolve().parent
SOURCE = HERE.parent.parent
DECLARATIONS = HERE / "declarations"

PROCESSORS = {"arm64": "aarch64", "x86_64": "x86_64"}
PROGRAMS = ("quindle-helper", "quindle", "quindle-inspect")

INCLUDE = Path("/usr/include") / os.uname().machine.replace("aarch64", "aarch64-linux-gnu").replace(
    "x86_64", "x86_64-linux-gnu")
QT_LIBRARIES = ("Core", "Gui", "Widgets", "Svg")
# Found by Debian's names of their development packages; on a Mac they come with the system or with Homebrew.
OTHER_LIBRARIES = {"libxml2.2.dylib": "libxml2.so", "libsqlite3.dylib": "libsqlite3.so"}
RUNTIME_LIBRARIES = {"libc++.1.dylib": "libc++.so.1", "libc++abi.dylib": "libc++abi.so.1"}

# Names of a Mac's Qt that Linux's has under others: those of functions with a std::string, which is libc++'s there.
QT_NAMES_OF_MACS = {"Core": {
    "__ZN10QByteArray13fromStdStringERKNSt3__112basic_stringIcNS0_11char_traitsIcEENS0_9allocatorIcEEEE",
    "__ZNK10QByteArray11toStdStringEv"}}

# The deployment target 13.3 has std::to_chars for doubles, which these headers do not know.
DEFINITIONS = ("-D_LIBCPP_DISABLE_AVAILABILITY", "-D_LIBCPP_ABI_VERSION=1", "-D_LIBCPP_ABI_NAMESPACE=__1")

# The entry points of the Objective-C runtime that clang calls, from its documentation of automatic reference counting.
RUNTIME = """_OBJC_CLASS_$_NSObject _OBJC_METACLASS_$_NSObject __objc_empty_cache _objc_alloc _objc_alloc_init
_objc_autorelease _objc_autoreleasePoolPop _objc_autoreleasePoolPush _objc_autoreleaseReturnValue _objc_copyWeak _objc_destroyWeak
_objc_initWeak _objc_loadWeakRetained _objc_msgSend _objc_msgSendSuper2 _objc_opt_class _objc_release _objc_retain
_objc_retainAutorelease _objc_retainAutoreleaseReturnValue _objc_retainAutoreleasedReturnValue _objc_retainBlock
_objc_storeStrong _objc_storeWeak _objc_unsafeClaimAutoreleasedReturnValue _objc_getProperty _objc_setProperty_nonatomic_copy
__NSConcreteStackBlock""".split()
FRAMEWORK_RUNTIME = {"CoreFoundation": ["___CFConstantStringClassReference"]}


class Failure(Exception):
    """One line for the person who ran it."""


def run(command, what, failure=Failure):
    result = subprocess.run([str(part) for part in command], capture_output=True, text=True, check=False)
    if result.returncode:
        raise failure(f"{what}\n{result.stdout}{result.stderr}".rstrip())
    return result.stdout


# What is compiled with.


def headers(folder, libraries, processor):
    """Folders of headers, in their order. Of this computer's these alone: the others are of another system."""
    own = folder / "headers"
    own.mkdir(parents=True)
    for name, path in {"libxml": "libxml2/libxml", "unicode": "unicode", "sqlite3.h": "sqlite3.h"}.items():
        (own / name).symlink_to(Path("/usr/include") / path)
    system = libraries / "lib/libc/include"
    return [libraries / "lib/libcxx/include", libraries / "lib/libcxxabi/include", system / f"{PROCESSORS[processor]}-macos.13-none",
            system / "any-macos.13-any", system / "any-macos-any", DECLARATIONS, own]


def compile_flags(folder, libraries, processor):
    return ["-stdlib=libc++", "-nostdinc++", "-nostdlibinc", *DEFINITIONS,
            *(f"-isystem{path}" for path in headers(folder, libraries, processor))]


def toolchain(folder, processor, flags, stubs):
    """A file that lets CMake take this computer for a Mac, with stand-ins for what its Qt would look for there."""
    modules = folder / "modules"
    modules.mkdir(parents=True)
    for name in ("WrapOpenGL", "WrapVulkanHeaders", "XKB"):
        (modules / f"Find{name}.cmake").write_text(f"add_library({name}::{name} INTERFACE IMPORTED)\nset({name}_FOUND ON)\n", encoding="utf-8")
    tools = {"CMAKE_CXX_COMPILER": "clang++-14", "CMAKE_OBJCXX_COMPILER": "clang++-14", "CMAKE_OTOOL": "llvm-otool-14",
             "CMAKE_INSTALL_NAME_TOOL": "llvm-install-name-tool-14", "CMAKE_AR": "llvm-ar-14", "CMAKE_RANLIB": "llvm-ranlib-14"}
    languages = ("CXX", "OBJCXX")
    values = {"CMAKE_SYSTEM_NAME": "Darwin", "CMAKE_SYSTEM_PROCESSOR": processor, "CMAKE_TRY_COMPILE_TARGET_TYPE": "STATIC_LIBRARY",
              "CMAKE_MODULE_PATH": modules, "CMAKE_LIBRARY_ARCHITECTURE": INCLUDE.name, "CMAKE_PREFIX_PATH": "/usr",
              **{name: shutil.which(tool) for name, tool in tools.items()}}
    for language in languages:
        values |= {f"CMAKE_{language}_COMPILER_WORKS": 1, f"CMAKE_{language}_COMPILER_TARGET": f"{processor}-apple-macos13.3",
                   f"CMAKE_{language}_FLAGS_INIT": " ".join(flags),
                   f"CMAKE_{language}_LINK_EXECUTABLE":
                       f"{sys.executable} {HERE / 'link.py'} {processor} {stubs} <LINK_FLAGS> <OBJECTS> <LINK_LIBRARIES> -o <TARGET>"}
    path = folder / "toolchain.cmake"
    path.write_text("".join(f'set({name} "{value}")\n' for name, value in values.items())
                    + "list(APPEND CMAKE_FIND_LIBRARY_SUFFIXES .so)\n", encoding="utf-8")
    return path


# What is linked with.


def write_stub(path, name, symbols):
    listing = ",\n      ".join(f"'{symbol}'" for symbol in sorted(symbols))
    targets = "[ " + ", ".join(f"{processor}-macos" for processor in PROCESSORS) + " ]"
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_text(f"--- !tapi-tbd\ntbd-version: 4\ntargets: {targets}\ninstall-name: '{name}'\ncurrent-version: 1\n"
                    f"exports:\n  - targets: {targets}\n    symbols: [ {listing} ]\n...\n", encoding="utf-8")


def dynamic_symbols(name):
    """Those of a library of this computer, as a Mac's of the same version has them."""
    library = next(path for folder in (Path("/usr/lib") / INCLUDE.name, Path("/usr/lib/llvm-14/lib"))
                   if (path := folder / name).exists())
    listed = run(["llvm-nm-14", "-D", "--defined-only", "--no-demangle", library], f"{library}: has no symbols")
    return {"_" + line.split()[-1].split("@")[0] for line in listed.splitlines() if line.split()[-2] in "TWVBDRuUi"}


def framework_symbols(folder):
    declared = compare_declarations.read_declarations(folder)
    symbols = {"_" + name for name in [*declared.functions, *declared.constants]}
    return symbols | {f"_OBJC_{kind}_$_{name}" for name in declared.supers for kind in ("CLASS", "METACLASS")}


def write_stubs(folder, libraries):
    """The names that each library and framework has."""
    for library in QT_LIBRARIES:
        write_stub(folder / f"libQt6{library}.tbd", f"@rpath/Qt{library}.framework/Versions/A/Qt{library}",
                   dynamic_symbols(f"libQt6{library}.so") | QT_NAMES_OF_MACS.get(library, set()))
    for install_name, library in {**OTHER_LIBRARIES, **RUNTIME_LIBRARIES}.items():
        write_stub(folder / f"{library.partition('.so')[0]}.tbd", f"/usr/lib/{install_name}", dynamic_symbols(library))
    for framework in (path.name for path in DECLARATIONS.iterdir()):
        write_stub(folder / f"{framework}.framework/{framework}.tbd",
                   f"/System/Library/Frameworks/{framework}.framework/Versions/A/{framework}",
                   framework_symbols(DECLARATIONS / framework) | set(FRAMEWORK_RUNTIME.get(framework, [])))
    write_stub(folder / "libobjc.tbd", "/usr/lib/libobjc.A.dylib", RUNTIME)
    shutil.copy(libraries / "lib/libc/darwin/libSystem.13.tbd", folder / "libSystem.tbd")


# The build.


def configure(folder, path_of_toolchain, with_tests):
    run(["cmake", "-S", SOURCE, "-B", folder, "-G", "Ninja", f"-DCMAKE_TOOLCHAIN_FILE={path_of_toolchain}", "-DCMAKE_BUILD_TYPE=Debug",
         # Nobody looks into what is made here with a debugger.
         "-DCMAKE_CXX_FLAGS_DEBUG=", "-DCMAKE_OBJCXX_FLAGS_DEBUG=", "-DQUINDLE_WARNINGS_AS_ERRORS=ON", "-DCCACHE=OFF", "-DCMAKE_EXPORT_COMPILE_COMMANDS=ON",
         f"-DQUINDLE_TESTS={'ON' if with_tests else 'OFF'}"], "the build does not configure for a Mac")
    unknown = set(re.findall(r"-l(quindle_\w+)", (folder / "build.ninja").read_text(encoding="utf-8")))
    if unknown:
        raise Failure(f"the build for a Mac links what it does not make: {', '.join(sorted(unknown))}")


def check_that_unknown_names_are_found(folder, processor, flags, stubs):
    """A function that no library has must not link, or the linking shows nothing."""
    source, target = folder / "unknown.cpp", folder / "unknown.o"
    source.write_text("extern \"C\" int quindleHasNoSuchName();\nint main()\n{\n    return quindleHasNoSuchName();\n}\n", encoding="utf-8")
    run(["clang++-14", "-target", f"{processor}-apple-macos13.3", *flags, "-c", source, "-o", target], f"{source}: does not compile")
    try:
        run([sys.executable, HERE / "link.py", processor, stubs, target, "-o", folder / "unknown"], "does not link")
    except Failure as failure:
        if "quindleHasNoSuchName" in str(failure):
            return
        raise
    raise Failure("a name that no library has links")


def build(folder, libraries, processor, stubs, jobs, with_tests):
    """Compiles and links the programs in a new folder."""
    started = time.monotonic()
    shutil.rmtree(folder, ignore_errors=True)
    flags = compile_flags(folder, libraries, processor)
    configure(folder / "build", toolchain(folder, processor, flags, stubs), with_tests)
    check_that_unknown_names_are_found(folder, processor, flags, stubs)
    run(["ninja", "-C", folder / "build", "-j", jobs, *PROGRAMS], f"the build for {processor} fails")
    return f"{processor}: {', '.join(PROGRAMS)} compiled and linked, {time.monotonic() - started:.0f} s"
