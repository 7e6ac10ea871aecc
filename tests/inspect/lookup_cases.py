"""The text that distinguishes models of one family: known, cached, or answered by the product-information service."""

from machine_case import ABSENT, Case, machine

CODE = "F5YX"


def computer(code=CODE, cache=None, **keys):
    standard = None if cache is None else {"modelStringCache": cache}
    return machine(mac={"IOPlatformSerialNumber": "C02MN1TX" + code}, standard=standard, **keys)


def answered(reply, **keys):
    return computer(Replies={CODE: reply}, **keys)


def found(text, cache):
    return [(0, "mac/LongModel", text), (0, "defaults/standard/modelStringCache", cache)]


def reply(name, text, wanted):
    """wanted: the text found, which the cache then keeps; nothing is kept without one."""
    return Case(name, answered(text), found(wanted, {CODE: wanted} if wanted else ABSENT))


def named(name):
    return f"<root><name>CPU Name</name><configCode>{name}</configCode><locale>en_US</locale></root>"


LONG = "(Retina 5K, 27-inch, Late 2014)"

CASES = [
    reply("the name is the code's element", named("MacBook Air (13-inch, Early 2014)"), "(13-inch, Early 2014)"),
    reply("with a declaration", '<?xml version="1.0" encoding="utf-8"?>\n' + named("M (x)"), "(x)"),
    reply("nothing after the name", "<root><configCode>M (x)</configCode></root>", "(x)"),
    reply("a line break after the name takes its place", "<root><configCode>M (x)</configCode>\n</root>", None),
    reply("a line break before the next element too", "<root>\n<configCode>M (x)</configCode>\n<a/>\n</root>", None),
    reply("text of the next element does not", "<root><configCode>M (x)</configCode><a>b</a>\n</root>", "(x)"),
    reply("a reference cuts the name", "<root><configCode>M (13 &amp; 15)</configCode></root>", None),
    reply("the last piece counts", "<root><configCode>M (a) &amp; (15)</configCode></root>", "(15)"),
    reply("a literal section is no text", "<root><configCode>M (x)<![CDATA[ (y)]]></configCode></root>", "(x)"),
    reply("the last of several names", "<r><configCode>(a)</configCode><configCode>(b)</configCode></r>", "(b)"),
    reply("the other element's text", "<root><name>M (x)</name></root>", None),
    reply("cut off", named("M (x)").removesuffix("</root>"), None),
    reply("no document", "M (x)", None),
    reply("empty", "", None),
    reply("two parts", named("A (x) B (y)"), "(x) B (y)"),
    reply("nothing between", named("A ()"), None),
    reply("the parts of one line only", named("A (x\ny)"), None),
    reply("a later line", named("A\n(x)"), "(x)"),
    reply("letters of other scripts", named("(13\u00a0inch)"), None),
    reply("an entity of the document is not expanded",
          '<!DOCTYPE r [<!ENTITY e "(x)">]><r><configCode>&e;</configCode></r>', None),
    reply("nor one of a file",
          '<!DOCTYPE r [<!ENTITY e SYSTEM "file:///etc/hostname">]><r><configCode>(&e;)</configCode></r>', None),
    Case("shortened, but not in the cache", answered(named("iMac (Retina 5K, Aluminium)"), cache={"AAAA": "(old)"}),
         found("(5K, Al.)", {CODE: "(Retina 5K, Aluminium)", "AAAA": "(old)"})),
    Case("every occurrence is shortened", answered(named("(Retina 4K Retina 4K)")),
         found("(4K 4K)", {CODE: "(Retina 4K Retina 4K)"})),
    Case("the cache answers first", answered(named("M (x)"), cache={CODE: LONG}),
         found("(5K, 27-inch, Late 2014)", {CODE: LONG})),
    Case("a cache of another type is empty", answered(named("M (x)"), cache="x"), found("(x)", {CODE: "(x)"})),
    Case("an entry of another type is none", answered(named("M (x)"), cache={CODE: 5, "AAAA": 6}),
         found("(x)", {CODE: "(x)", "AAAA": 6})),
    Case("another code's answer", computer(Replies={"AAAA": named("M (x)")}), found(None, ABSENT)),
    Case("no network", computer(), found(None, ABSENT)),
    Case("the known code asks nobody", computer("F5YW", {"F5YW": "(y)"}, Replies={"F5YW": named("M (x)")}),
         found("(11-inch, Late 2013)", {"F5YW": "(y)"})),
    Case("without a code nobody is asked", machine(mac={"IOPlatformSerialNumber": "C02MN1TXF5"},
                                                   standard={"modelStringCache": {"": "(y)"}},
                                                   Replies={"": named("M (x)")}), [(0, "mac/LongModel", None)]),
    Case("the code of eleven characters", machine(mac={"IOPlatformSerialNumber": "ABCDEFGHIJK"},
                                                  Replies={"IJK": named("M (x)")}), [(0, "mac/LongModel", "(x)")]),
    Case("a code of any characters", machine(mac={"IOPlatformSerialNumber": "C02MN1TX&#e\u0301%"},
                                             Replies={"&#e\u0301%": named("M (x)")}), [(0, "mac/LongModel", "(x)")]),
    Case("asked at the start only", answered(named("M (x)"), steps=[{"Replies": {CODE: named("M (y)")}}]),
         [(1, "mac/LongModel", "(x)")]),
    Case("the program's own bundle, which has no host", answered(named("M (x)"), Bundle=None),
         [(0, "mac/LongModel", "(x)")]),
]
