"""The texts of the setup application: each is translated, in every language of the library's warnings."""

import os
import pathlib
import re
import subprocess
import tempfile
import unittest
import xml.etree.ElementTree

SOURCES = pathlib.Path(os.environ["SETUP_SOURCES"])
LUPDATE = os.environ["LUPDATE"]
LANGUAGES = ["de", "en", "es", "fr", "it", "ja", "ko", "nl", "pt", "ru", "zh_CN", "zh_TW"]
# How many forms a text with a number has, as Qt counts them.
FORMS = {"de": 2, "en": 2, "es": 2, "fr": 2, "it": 2, "ja": 1, "ko": 1, "nl": 2, "pt": 2, "ru": 3, "zh_CN": 1, "zh_TW": 1}
PLACE = re.compile(r"%[1-9n]")


class Message:
    """A text of the program, and what it is in another language."""

    def __init__(self, context, element):
        translation = element.find("translation")
        self.name = (context, element.findtext("source"), element.findtext("comment"))
        self.source = element.findtext("source")
        self.has_number = element.get("numerus") == "yes"
        self.state = translation.get("type", "finished")
        forms = translation.findall("numerusform") if self.has_number else [translation]
        self.forms = ["".join(form.itertext()) for form in forms]


def messages_of(file):
    tree = xml.etree.ElementTree.parse(file)
    return [Message(context.findtext("name"), message)
            for context in tree.iter("context") for message in context.iter("message")]


class Translations(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        """Brings copies of the files up to date with the sources, as lupdate does for a translator."""
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.files = {language: pathlib.Path(folder.name) / f"trx-setup_{language}.ts" for language in LANGUAGES}
        for file in cls.files.values():
            kept = SOURCES / "translations" / file.name
            if kept.exists():
                file.write_bytes(kept.read_bytes())
        subprocess.run([LUPDATE, "-silent", "-locations", "none", SOURCES, "-ts", *cls.files.values()], check=True)
        cls.messages = {language: messages_of(file) for language, file in cls.files.items()}

    def every_message(self):
        for language, messages in self.messages.items():
            for message in messages:
                yield language, message

    def test_there_is_a_file_for_each_language_and_no_other(self):
        names = sorted(file.name for file in (SOURCES / "translations").glob("*.ts"))
        self.assertEqual(names, sorted(file.name for file in self.files.values()))

    def test_the_program_has_texts(self):
        self.assertGreater(len(self.messages["de"]), 50)

    def test_no_text_of_the_program_is_missing_unfinished_or_left_over(self):
        wrong = [(language, message.state, message.name) for language, message in self.every_message()
                 if message.state != "finished"]
        self.assertEqual(wrong, [])

    def test_no_translation_is_empty(self):
        empty = [(language, message.name) for language, message in self.every_message()
                 if not all(form.strip() for form in message.forms)]
        self.assertEqual(empty, [])

    def test_english_is_what_the_program_says(self):
        # It has a file so that a user who puts English first is not shown the second language.
        other = [message.name for message in self.messages["en"]
                 if not message.has_number and message.forms != [message.source]]
        self.assertEqual(other, [])

    def test_texts_with_a_number_have_the_forms_of_the_language(self):
        wrong = [(language, message.name, message.forms) for language, message in self.every_message()
                 if message.has_number and len(message.forms) != FORMS[language]]
        self.assertEqual(wrong, [])

    def test_what_is_put_into_a_text_is_put_into_its_translations(self):
        wrong = []
        for language, message in self.every_message():
            for form in message.forms:
                wanted, found = (sorted(PLACE.findall(text)) for text in (message.source, form))
                # A form for one thing may spell the number.
                if found not in (wanted, [place for place in wanted if place != "%n"]):
                    wrong.append((language, message.name, form))
        self.assertEqual(wrong, [])

    def test_a_key_that_opens_something_does_so_in_every_language(self):
        wrong = [(language, message.name, form) for language, message in self.every_message()
                 for form in message.forms if ("&" in message.source) != ("&" in form)]
        self.assertEqual(wrong, [])

    def test_texts_have_no_stray_blanks_and_no_quick_typing(self):
        wrong = [(language, message.name, form) for language, message in self.every_message()
                 for form in filter(None, message.forms)
                 if "..." in form or "'" in form or form.strip(" ") != form and message.source.strip(" ") == message.source]
        self.assertEqual(wrong, [])


if __name__ == "__main__":
    unittest.main()
