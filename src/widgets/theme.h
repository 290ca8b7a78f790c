// The looks that all controls and windows share: everything is drawn from what stands here.
#pragma once

#include <QColor>
#include <QFont>

class QPainter;
class QPointF;
class QRect;
class QRectF;

namespace orbelle::widgets {

enum class Shade { Light, Dark };

// Text and Note have a contrast of at least 4.5 : 1 to Ground and Field, Line and Accent of 3 : 1.
struct Theme {
    QColor Ground;  // windows, bars and panels
    QColor Field;   // what is typed into or chosen from, menus, balloons
    QColor Line;    // edges of controls
    QColor Text;
    QColor Note;    // words beside the matter
    QColor Accent;  // what is chosen, lit or has the focus
};

const Theme& ThemeOf(Shade shade);
// Of the program; light at first.
const Theme& CurrentTheme();
Shade CurrentShade();
// What is shown already has to be painted anew.
void SetShade(Shade shade);

// Mixed of the six.
QColor BandColor();      // the quiet band of a header
QColor HairlineColor();  // between two areas; tells nothing
QColor HoverColor();     // a face below the pointer
QColor PressedColor();   // a face that is down, a row that is chosen
QColor DisabledColor();  // words and lines of what can't be used

QColor SceneColor();  // around the page, dark in both shades

// The six for what stands on the scene itself, and its faces below the pointer and down.
Theme SceneTheme();
QColor SceneHoverColor();
QColor ScenePressedColor();

// Whether things may move by themselves: the toolkit knows of most desktops, the program of others.
bool IsMotionWanted();
void SetMotionWanted(bool isWanted);  // true at first

// Sizes of text, points.
inline constexpr double kSmallText = 8.25;
inline constexpr double kNormalText = 9;
inline constexpr double kLargeText = 12;

// Logical pixels.
inline constexpr int kTightSpace = 4;
inline constexpr int kSpace = 8;
inline constexpr int kWideSpace = 12;
inline constexpr int kCornerRadius = 4;
inline constexpr int kControlHeight = 26;  // of a row of a panel, too
inline constexpr int kHeaderHeight = 28;   // of a panel

// How large the desktop has its text, 1 for 9 points.
double TextScale();

// For a line of text of that size, and for a width of words: at least what it is at the usual size.
int HeightFor(int least, double points = kNormalText);
int WidthFor(int usual);

// Verdana, or what the system has nearest to it, as much larger or smaller as the desktop's text.
QFont ChromeFont(double points);

// Squares of 5 x 5 pixels, every other one, the first in the top left corner.
void DrawChecker(QPainter& painter, const QRect& place, const QColor& color);

// The same in mid-grey, from the painter's brush origin on: what lies below a picture, so that
// white and black, gloss and shadow show.
QBrush GreyChecks();

// A mark that points down, 8 x 4 pixels, in the painter's pen.
void DrawChevron(QPainter& painter, const QPointF& middle);

// The face of a button below the pointer, or of one that is down.
void DrawFace(QPainter& painter, const QRectF& place, bool isDown);

// The line that a slider's thumb runs along, between `left` and `right`, lit from `litFrom` to
// `litTo`; all in pixels, centred in `height`.
void DrawGroove(QPainter& painter, int left, int right, int height, double litFrom, double litTo);

}  // namespace orbelle::widgets
