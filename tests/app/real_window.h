// The real program as its own process, on a display of its own.
#pragma once

#include <gtest/gtest.h>

#include <QImage>
#include <QProcess>
#include <QSettings>
#include <QString>
#include <initializer_list>
#include <memory>
#include <utility>

#include "support/temporary_folder.h"
#include "waiting.h"

namespace orbelle::app {

class MainWindow;

inline constexpr int kPictureSide = 200;
inline constexpr QRgb kPictureColor = 0xFF3A1C5E;
inline constexpr int kWholePicture = kPictureSide * kPictureSide;

// The program with folders of its own: nothing of the user's is read or written.
class RealProgramTest : public ::testing::Test {
protected:
    RealProgramTest();
    ~RealProgramTest() override;

    QString Path(const QString& name) const;
    // Pictures of one colour in the program's working folder; give the path.
    QString WritePicture(const QString& name = "tile.png",
                         QSize size = {kPictureSide, kPictureSide}, QRgb color = kPictureColor);
    // What the program finds remembered, or has remembered.
    std::unique_ptr<QSettings> SettingsFile() const;
    void Remember(std::initializer_list<std::pair<const char*, QVariant>> values);

    void StartProgram(const QStringList& arguments);
    // Waits for the end; false unless it came by itself with status 0.
    bool EndsWell(QProcess& process);

    orbelle::testing::TemporaryFolder folder;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    QProcess program;
};

// The program's window under real keys and a real pointer, on one display for all tests of a suite.
// All places are pixels of the display.
class RealWindowTest : public RealProgramTest {
protected:
    RealWindowTest();
    ~RealWindowTest() override;
    static void SetUpTestSuite();
    static void TearDownTestSuite();
    void SetUp() override;

    // Starts with a picture open, all panels open, opaque red and blue as colours, at 100 %.
    // False: the picture did not appear. Its corners are to have kPictureColor.
    bool StartWith(const QImage& picture);
    bool StartWithPicture();
    // Waits for a window whose title matches and gives it the keyboard: no window manager does.
    bool FocusWindow(const QString& title);
    bool FocusMain();

    void Press(const QStringList& keys);
    void Type(const QString& text);
    void MoveTo(QPoint place);
    void Click(QPoint place, int button = 1);
    void Drag(QPoint from, QPoint to);
    // Until display and program have taken all input and sleep.
    void WaitUntilIdle();

    // The part of the display where the page is, as it is now.
    QImage Scene();
    // Pixels of the scene in a colour: how many, and the rectangle that holds them.
    int Count(QRgb color = kPictureColor);
    QRect Bounds(QRgb color = kPictureColor);
    // The middle of the control that has this name, or this name for assistive tools.
    QPoint Control(const QString& name);
    // A button of a tool bar, counted from 1.
    QPoint Button(const QString& bar, int button);
    // The same of a pop-up that a button of the tool column has opened.
    QPoint PopupButton(const QString& popup, int opener, int button);

    // Gives a path to the file dialog that is to open, or is open.
    bool AnswerFileDialog(const QString& path);
    // Exports through the menu, whose entry has the mnemonic, and reads the picture back; null:
    // there was none.
    QImage Export(const QString& mnemonic, const QString& ending);
    QImage ExportPng();
    // Ends the program by Ctrl+Q, the changes thrown away.
    bool QuitWithoutSaving();

    QString Xdotool(const QStringList& arguments);

    QPoint page;  // where the picture's first pixel is

private:
    MainWindow& Twin();
    QRect SceneRect();

    std::unique_ptr<MainWindow> twin_;
    int exports_ = 0;
};

}  // namespace orbelle::app
