"""Whether the helper is among the session's login items."""

from machine_case import HELPER_PATH, Case, machine

MAIN = "/Applications/Quindle.app"
SPACED = "/usr/lib/Quindle Helper/Quindle.app/Contents/Resources/Quindle-Helper.app"
ENCODED = SPACED.replace(" ", "%20")


def case(name, items, expected, path=HELPER_PATH, **keys):
    bundle = {"Info": {"CFBundleVersion": "1"}} | ({} if path is None else {"Path": path})
    return Case(name, machine(Bundle=bundle, LoginItems=items, **keys), [(0, "isAppLoginItem", expected)])


FORMS = [
    case(f"{kind}, item {'with' if end else 'without'} a slash", [f"file://{HELPER_PATH}{end}"], True, path)
    for kind, path in (("own bundle", HELPER_PATH), ("main application's bundle", MAIN))
    for end in ("/", "")
]

CASES = FORMS + [
    case("no items given", None, False),
    case("no items", [], False),
    case("others only", ["file:///Applications/Other.app/", f"file://{MAIN}/"], False),
    case("among others", ["file:///a", f"file://{HELPER_PATH}/", "file:///b"], True),
    case("items that are no file URLs", ["", HELPER_PATH, "https:/" + HELPER_PATH, "%"], False),
    case("blank encoded", [f"file://{ENCODED}/"], True, SPACED),
    case("blank as it is", [f"file://{SPACED}"], True, SPACED),
    case("blank, from the main application", [f"file://{ENCODED}/"], True, SPACED[:SPACED.index("/Contents")]),
    case("letters beyond ASCII", ["file:///opt/%C3%A4/Quindle-Helper.app"], True, "/opt/\u00e4/Quindle-Helper.app"),
    case("percent sign in the path", ["file:///opt/5%25/Quindle-Helper.app/"], True, "/opt/5%/Quindle-Helper.app"),
    case("host of the older form", [f"file://localhost{HELPER_PATH}/"], True),
    case("case matters", [f"file://{HELPER_PATH.lower()}/"], False),
    case("the nested bundle of a lower-case one", ["file:///opt/quindle-helper.app/Contents/Resources/Quindle-Helper.app/"],
         True, "/opt/quindle-helper.app"),
    case("a bundle's folder under the name alone is the bundle", ["file:///opt/Quindle-Helper/"], True,
         "/opt/Quindle-Helper"),
    case("empty bundle path", ["file:///Contents/Resources/Quindle-Helper.app/"], True, ""),
    case("no bundle path", ["file:///Contents/Resources/Quindle-Helper.app"], True, None),
    Case("entered and taken out later", machine(LoginItems=[], steps=[
        {"LoginItems": [f"file://{HELPER_PATH}/"]}, {"Remove": ["LoginItems"]}]),
         [(0, "isAppLoginItem", False), (1, "isAppLoginItem", True), (2, "isAppLoginItem", False)]),
]
