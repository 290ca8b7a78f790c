// Texts in the language of the user; that none is left out is for window_states_tests.cpp.
#include "app/language.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QLibraryInfo>
#include <QProcess>

#include "app/core_words.h"
#include "app/written_text.h"
#include "widgets/words.h"

namespace orbelle::app {
namespace {

TEST(LanguageTest, TheFirstOfTheUsersLanguagesThatWeHaveIsTaken) {
    for (const auto& [locale, expected] : {std::pair("de_DE", "Neu"),
                                           {"de_AT", "Neu"},
                                           {"en_GB", "New"},
                                           {"fr_FR", "New"},
                                           {"C", "New"}}) {
        const Language language{QLocale(locale)};
        EXPECT_EQ(Words::tr("New"), expected) << locale;
    }
    EXPECT_EQ(Words::tr("New"), "New") << "a language ends with its object";
}

TEST(LanguageTest, TheToolkitSpeaksTheSame) {
    if (!QFile::exists(QLibraryInfo::path(QLibraryInfo::TranslationsPath) + "/qtbase_de.qm"))
        GTEST_SKIP() << "the toolkit's translations are not installed";
    const Language language{QLocale("de_DE")};
    EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), "Abbrechen");
}

TEST(LanguageTest, TheProgramTakesThatOfTheDesktop) {
    for (const auto& [languages, expected] : {std::pair("de", "ein Icon-Editor."),
                                              {"en:de", "an icon editor."},
                                              {"fr:de", "ein Icon-Editor."}}) {
        QProcess program;
        QProcessEnvironment desktop = QProcessEnvironment::systemEnvironment();
        desktop.insert("LANGUAGE", languages);
        desktop.insert("LC_ALL", "C.UTF-8");
        program.setProcessEnvironment(desktop);
        program.start(ORBELLE_PROGRAM, {"--help"});
        ASSERT_TRUE(program.waitForFinished());
        EXPECT_TRUE(program.readAllStandardOutput().contains(expected)) << languages;
    }
}

TEST(LanguageTest, NumbersAreWrittenAsTheTextsAre) {
    EXPECT_EQ(SizeText(1468006), "1.4 MB");
    EXPECT_EQ(NumberLocale().toString(1000), "1,000");
    const Language language{QLocale("de_DE")};
    EXPECT_EQ(SizeText(1), "1 Byte");
    EXPECT_EQ(SizeText(812), "812 Byte");
    EXPECT_EQ(SizeText(1468006), "1,4 MB");
    EXPECT_EQ(NumberLocale().toString(1000), "1.000");
    EXPECT_EQ(ExportedIconText("/home/ann/a.ico", 3072, "ICO", {32, 24, 16}),
              "a.ico exportiert, ICO mit 32, 24 und 16 px, 3 KB, in /home/ann");
}

TEST(LanguageTest, WhatTheCoreTellsIsTranslatedPartByPart) {
    const Language language{QLocale("de_DE")};
    const std::pair<const char*, const char*> texts[] = {
        {"Crystal", "Kristall"},
        {"There is not enough memory.", "Der Arbeitsspeicher reicht nicht aus."},
        {"A document can't have more than 101 layers.",
         "Ein Dokument kann nicht mehr als 101 Ebenen haben."},
        {"/a: b/c.ico: not a Windows icon", "/a: b/c.ico: kein Windows-Icon"},
        {"a.bmp: the BMP picture is cut short or damaged: unknown header",
         "a.bmp: das BMP-Bild ist unvollständig oder beschädigt: unbekannter Kopf"},
        {"a.png: the PNG picture is cut short or damaged: IDAT: CRC error",
         "a.png: das PNG-Bild ist unvollständig oder beschädigt: IDAT: CRC error"},
        {"a.volf: layer 0: the file is cut short; and 2 more; 1 of 4 layers could be read",
         "a.volf: Ebene 0: die Datei ist unvollständig; und 2 weitere; 1 von 4 Ebenen konnten "
         "gelesen werden"},
        {"there is no image 3; the icon has 2", "es gibt kein Bild 3; das Icon hat 2"},
        {"left out: image 0: 24 x 16 pixels; image 4: not a PNG, JPEG, GIF or BMP picture",
         "ausgelassen: Bild 0: 24 x 16 Pixel; Bild 4: kein PNG-, JPEG-, GIF- oder BMP-Bild"},
        {"a.volf: it has several names, and a copy for writing in place can't be made: EIO",
         "a.volf: die Datei hat mehrere Namen, und die Kopie, um an Ort und Stelle zu schreiben, "
         "ist nicht möglich: EIO"},
        {"/Cut: Permission denied", "/Cut: Permission denied"},
        {"image of mine: nothing known", "image of mine: nothing known"},
    };
    for (const auto& [text, expected] : texts)
        EXPECT_EQ(TranslatedText(text).toStdString(), expected);
}

TEST(LanguageTest, InEnglishTheCoreIsLeftAlone) {
    for (const char* text : {"Crystal", "a.ico: not a Windows icon",
                             "left out: image 0: 24 x 16 pixels", "Varnel Orbelle - Project *", ""})
        EXPECT_EQ(TranslatedText(text).toStdString(), text);
}

}  // namespace
}  // namespace orbelle::app
