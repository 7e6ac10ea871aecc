"""settings_table_test.py SOURCE_DIR: the settings in settings/SettingsTable.h are those of docs/settings.md, and no other
source file names a key."""

import re
import sys
import unittest
from pathlib import Path

SOURCE = Path(sys.argv.pop(1))
TYPES = {"bool": "boolean", "qint64": "integer", "QStringView": "text", "SettingDictionary": "dictionary"}
SETTING = re.compile(r'constexpr Setting<(\w+)>\s*\w+\{u"(\w+)", (own|shared), ([\w:]+)\};')
DEFAULT = re.compile(r'constexpr \w+ (\w+) = (?:u"([^"]*)"|(\w+));')
TEXT = re.compile(r'"(\w+)"')


def settings_of_program():
    text = (SOURCE / "settings/SettingsTable.h").read_text()
    missing = {f"DefaultValues::{name}": f"`{quoted}`" if quoted else plain for name, quoted, plain in DEFAULT.findall(text)}
    missing["std::nullopt"] = "absent"
    rows = [(f"`{key}`", database, TYPES[kind], missing[default]) for kind, key, database, default in SETTING.findall(text)]
    assert len(rows) == text.count("constexpr Setting<"), "a row is written in another way"
    return rows


def settings_of_document():
    table = (SOURCE / "docs/settings.md").read_text().split("\n## Keys\n")[1].split("\n## ")[0]
    rows = [tuple(cell.strip() for cell in line.split("|")[1:5]) for line in table.splitlines() if line.startswith("| ")]
    return rows[2:]


def sources():
    for path in SOURCE.rglob("*"):
        folder = path.relative_to(SOURCE).parts[0]
        if path.suffix in (".cpp", ".h") and folder not in ("tests", "build", "benchmarks"):
            yield path


class SettingsTable(unittest.TestCase):
    def test_the_document_says_the_same(self):
        self.assertEqual(settings_of_program(), settings_of_document())

    def test_nothing_else_names_a_key(self):
        keys = {key.strip("`") for key, *_ in settings_of_program()}
        self.assertIn("autoUpload", keys)
        for path in sources():
            if path.name == "SettingsTable.h":
                continue
            code = "\n".join(line for line in path.read_text().splitlines() if not line.lstrip().startswith("//"))
            self.assertEqual(keys & set(TEXT.findall(code)), set(), path)


unittest.main()
