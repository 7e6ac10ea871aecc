"""translations_test.py SOURCE: the files of translators against the texts in the sources."""

import re
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree
from collections import Counter, defaultdict
from pathlib import Path

SOURCE = Path(sys.argv.pop(1))
FILES = SOURCE / "resources" / "translations"
LANGUAGES = {"de", "fr", "es", "it", "pt_BR", "pl", "ja", "zh_CN", "ar"}
PLACEHOLDER = re.compile(r"%(?:L?\d+|L?n|p)")
TAG = re.compile(r"</?\w+[^>]*>")
PATTERN = re.compile(r"\(\*[^)]*\)")
MNEMONIC = re.compile(r"&(?!&)(.)")


class Message:
    def __init__(self, context, element):
        self.context = context
        self.source = element.findtext("source")
        translation = element.find("translation")
        forms = translation.findall("numerusform")
        self.isUnfinished = translation.get("type") == "unfinished"
        self.hasForms = element.get("numerus") == "yes"
        self.texts = [form.text or "" for form in forms] if forms else [translation.text or ""]

    def __str__(self):
        return f"{self.context}: {self.source!r} -> {self.texts}"


def messages(path):
    for context in ElementTree.parse(path).getroot().iter("context"):
        for element in context.iter("message"):
            yield Message(context.findtext("name"), element)


def counted(pattern, text):
    return Counter(pattern.findall(text))


def faults(message, text):
    """What a translation may not change."""
    source = message.source
    # One form may leave the number out: "about a minute".
    needed, given = counted(PLACEHOLDER, source), counted(PLACEHOLDER, text)
    if given != needed and not (message.hasForms and not given - needed):
        yield "other placeholders"
    if counted(TAG, source) != counted(TAG, text):
        yield "other tags"
    if counted(PATTERN, source) != counted(PATTERN, text):
        yield "other file patterns"
    if len(MNEMONIC.findall(source)) != len(MNEMONIC.findall(text)):
        yield "another number of mnemonics"
    if source.endswith("...") != text.endswith(("...", "…")):
        yield "three dots more or less"
    if text != text.strip():
        yield "blanks around it"


class Translations(unittest.TestCase):
    def files(self):
        found = {path.stem.removeprefix("quindle_"): path for path in FILES.glob("quindle_*.ts")}
        self.assertEqual(set(found), LANGUAGES)
        return found

    def test_every_file_has_the_texts_of_the_sources(self):
        with tempfile.TemporaryDirectory() as folder:
            run = subprocess.run([SOURCE / "scripts/update-translations", "--into", folder], capture_output=True, text=True,
                                 check=False)
            self.assertEqual(run.returncode, 0, run.stderr)
            # A class that lupdate cannot find gets its texts under a name that they are never looked up by.
            self.assertEqual(run.stderr, "")
            for path in self.files().values():
                self.assertEqual(path.read_text("utf-8"), (Path(folder) / path.name).read_text("utf-8"),
                                 f"run scripts/update-translations ({path.name})")

    def test_placeholders_agree(self):
        found = [f"{name}: {fault}: {message}" for name, path in self.files().items() for message in messages(path)
                 for text in message.texts if text for fault in faults(message, text)]
        self.assertEqual(found, [])

    def test_finished_texts_are_not_empty(self):
        found = [f"{name}: {message}" for name, path in self.files().items() for message in messages(path)
                 if not message.isUnfinished and not all(message.texts)]
        self.assertEqual(found, [])

    def test_mnemonics_of_a_window_are_different(self):
        """As far as those of the English window are."""
        for name, path in self.files().items():
            windows = defaultdict(lambda: ([], []))
            for message in messages(path):
                for letters, text in zip(windows[message.context], (message.source, message.texts[0])):
                    letters += [letter.lower() for letter in MNEMONIC.findall(text)]
            for context, (english, other) in windows.items():
                if len(set(english)) == len(english):
                    with self.subTest(language=name, window=context):
                        self.assertEqual(len(set(other)), len(other), sorted(other))

    def test_the_tests_find_faults(self):
        """On invented translations, since the real ones have none."""
        def check(source, text, hasForms=False):
            element = ElementTree.fromstring("<message><source/><translation/></message>")
            element.find("source").text = source
            message = Message("", element)
            message.hasForms = hasForms
            return list(faults(message, text))
        self.assertEqual(check("%1 of %2", "%2 / %1"), [])
        self.assertEqual(check("%1 of %2", "%1"), ["other placeholders"])
        self.assertEqual(check("%1 days", "ein Tag", hasForms=True), [])
        self.assertEqual(check("&Save...", "Sichern"), ["another number of mnemonics", "three dots more or less"])
        self.assertEqual(check("Files (*.csv)", "Dateien (*.cvs)"), ["other file patterns"])
        self.assertEqual(check("<b>a</b>", "<b>a</i>"), ["other tags"])
        self.assertEqual(check("a", "a "), ["blanks around it"])


if __name__ == "__main__":
    unittest.main()
