// How long a hand on the window waits: from a mouse event until what it changed is painted. Drags a
// layer, draws and moves sliders on a page of ten layers of 512 x 512, at 100 % and at 800 %; then
// goes from page to page. Settings are neither read nor written. With the word "recovery" unsaved
// work is kept meanwhile, in the user's state folder; with "no-sizes" the panel Sizes is closed.
#include <QApplication>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

#include "app/looks.h"
#include "app/main_window.h"
#include "app/scene_view.h"
#include "app/settings.h"
#include "app/sizes_panel.h"
#include "document/layer_slots.h"
#include "editing/buttons.h"
#include "editing/document_commands.h"
#include "editing/layer_commands.h"
#include "editing/size_commands.h"
#include "editing/tool_palette.h"
#include "editing/view_commands.h"
#include "widgets/track_slider.h"

namespace {

using namespace orbelle;

constexpr int kPageSide = 512;
constexpr int kLayers = 10;
constexpr int kSteps = 60;

graphics::Bitmap Gradient(unsigned shade) {
    graphics::Bitmap picture(kPageSide, kPageSide);
    for (int y = 0; y < kPageSide; ++y)
        for (int x = 0; x < kPageSide; ++x)
            picture.MutableRow(y)[x] = graphics::MakeArgb(160, static_cast<unsigned>(x / 2),
                                                          static_cast<unsigned>(y / 2), shade);
    return picture;
}

void FillDocument(editing::Editor& editor) {
    OpenPicture(editor, Gradient(0));
    for (int i = 1; i < kLayers; ++i)
        MakeImageLayer(editor.Page(), editor.Page().Layers.emplace_back(),
                       Gradient(static_cast<unsigned>(i * 20)));
    SelectLayer(editor, 0);
    editor.Changed.Pixels = true;
}

void Send(QWidget& widget, QEvent::Type type, const QPointF& at) {
    const bool isMove = type == QEvent::MouseMove;
    QMouseEvent event(type, at, widget.mapToGlobal(at), isMove ? Qt::NoButton : Qt::LeftButton,
                      type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
    QApplication::processEvents();
}

void Print(const char* name, std::vector<double>& times) {
    std::ranges::sort(times);
    std::printf("%-18s median %6.2f ms   longest %6.2f ms\n", name, times[times.size() / 2],
                times.back());
}

// A drag over the widget; prints the median and the longest step.
void Measure(const char* name, QWidget& widget, const QPointF& from,
             const std::function<QPointF(int)>& step) {
    Send(widget, QEvent::MouseButtonPress, from);
    std::vector<double> times;
    for (int i = 0; i < kSteps; ++i) {
        QElapsedTimer timer;
        timer.start();
        Send(widget, QEvent::MouseMove, step(i));
        times.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    Send(widget, QEvent::MouseButtonRelease, step(kSteps - 1));
    Print(name, times);
}

// On the bottom layer, which is selected.
void MeasureHands(app::MainWindow& window) {
    const auto choose = [&window](int button) {
        window.Run([button](editing::Editor& editor) { ClickToolButton(editor, button); });
    };
    auto* scene = window.findChild<app::SceneView*>();
    const QPointF middle = scene->rect().center();
    const auto circle = [middle](int i) {
        return middle + QPointF(i * 3 % 100 - 50, i * 7 % 90 - 45);
    };
    choose(editing::tool_buttons::Move);
    Measure("drag a layer", *scene, middle, circle);
    choose(editing::tool_buttons::FilledEllipse);
    Measure("draw an ellipse", *scene, middle - QPointF(200, 200), circle);
    for (widgets::TrackSlider* slider : window.findChildren<widgets::TrackSlider*>()) {
        if (slider->accessibleName() != "Hue" && slider->accessibleName() != "Opacity")
            continue;
        slider->SetValue(50);
        const QPointF thumb(slider->width() / 2.0, slider->height() / 2.0);
        Measure(qPrintable(slider->accessibleName() + " slider"), *slider, thumb,
                [thumb](int i) { return thumb + QPointF(i * 11 % 40 - 20, 0); });
    }
}

// To a size that is drawn by hand and back to the master.
void MeasurePages(app::MainWindow& window) {
    window.Run([](editing::Editor& editor) { EditSize(editor, 16); });
    std::vector<double> times;
    for (int i = 0; i < kSteps; ++i) {
        QElapsedTimer timer;
        timer.start();
        window.Run([i](editing::Editor& editor) {
            GoToPage(editor, i % 2 == 0 ? document::Family::kMaster : 16);
        });
        QApplication::processEvents();
        times.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    Print("change of page", times);
}

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    app::ApplyLooks(app::Looks::Light);
    app::MainWindow window;
    window.resize(app::kDefaultMainSize);
    window.show();
    if (QApplication::arguments().contains("recovery"))
        window.StartRecovery();
    if (QApplication::arguments().contains("no-sizes"))
        window.findChild<app::SizesPanel*>()->SetOpen(false);
    window.Run(FillDocument);
    window.Run([](editing::Editor& editor) {
        editor.Document.Modified = true;
        editor.Changed.Pixels = true;
    });
    while (window.IsZoomAnimationRunning())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    window.Run([](editing::Editor& editor) {
        for (std::size_t i = 1; i < editor.Page().Layers.size(); ++i)
            editor.Page().Layers[i].Region = graphics::Region::Empty();
        editor.Tools.Colors = {0xFF3060C0, 0xFFF0D020};
        ChooseFill(editor, editing::FillKind::RadialGradient);
    });
    for (const double zoom : {1.0, 8.0}) {
        std::printf("at %.0f %%\n", zoom * 100);
        window.Run([zoom](editing::Editor& editor) {
            ZoomAboutMiddle(editor, zoom);
            SelectLayer(editor, 0);
            editor.Changed.Scene = true;
        });
        MeasureHands(window);
    }
    window.Run([](editing::Editor& editor) { ZoomAboutMiddle(editor, 1); });
    MeasurePages(window);
}
