#include "app/pointer_status.h"

#include <QColor>
#include <QPainter>
#include <cmath>

#include "app/tool_hint.h"
#include "editing/drag_readout.h"
#include "editing/scene_mapping.h"
#include "widgets/theme.h"
#include "widgets/words.h"

namespace orbelle::app {
namespace {

constexpr int kChipSide = 14;

// As wide as the widest text that it is to show, so that its neighbours stand still; if fixed, a
// new text does not lay out the line anew at every step of a drag.
class Field : public QLabel {
public:
    Field(const char* name, const QString& caption, QString widest, bool isFixed)
        : widest_(std::move(widest)), isFixed_(isFixed) {
        setObjectName(name);
        setToolTip(caption);
        setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        setContentsMargins(0, 0, widgets::kWideSpace, 0);
        Fit();
    }

private:
    void changeEvent(QEvent* event) override {
        QLabel::changeEvent(event);
        if (event->type() == QEvent::FontChange)
            Fit();
    }
    void Fit() {
        const QFontMetrics metrics = fontMetrics();
        const int width = metrics.horizontalAdvance(widest_) + widgets::kWideSpace;
        if (isFixed_)
            setFixedSize(width, metrics.height() + 1);
        else
            setMinimumWidth(width);
    }

    QString widest_;
    bool isFixed_;
};

QLabel* AddField(QStatusBar& line, const char* name, const QString& caption, const QString& widest,
                 bool isFixed = true) {
    auto* field = new Field(name, caption, widest, isFixed);
    line.addPermanentWidget(field);
    return field;
}

// A long one does not make the window wider; its end is left out where there is no room for it.
class Hint : public QLabel {
public:
    Hint() {
        setObjectName("ToolHint");
        setContentsMargins(widgets::kSpace, 0, 0, 0);
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    }

    QSize minimumSizeHint() const override { return {0, QLabel::minimumSizeHint().height()}; }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        const QRect room = contentsRect();
        painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter,
                         fontMetrics().elidedText(text(), Qt::ElideRight, room.width()));
    }
};

QLabel* AddHint(QStatusBar& line) {
    auto* hint = new Hint;
    line.addWidget(hint, 1);
    return hint;
}

}  // namespace

// On checks, in a frame.
class ColorChip : public QWidget {
public:
    ColorChip() {
        setObjectName("PointerColorChip");
        setFixedSize(kChipSide, kChipSide);
    }

    void Show(std::optional<QRgb> color) {
        if (color_ == color)
            return;
        color_ = color;
        update();
    }

private:
    void paintEvent(QPaintEvent* /*event*/) override {
        if (!color_)
            return;
        QPainter painter(this);
        painter.fillRect(rect(), Qt::white);
        widgets::DrawChecker(painter, rect(), QColor(216, 216, 216));
        painter.fillRect(rect(), QColor::fromRgba(*color_));
        painter.setPen(widgets::CurrentTheme().Line);
        painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    }

    std::optional<QRgb> color_;
};

static ColorChip* AddChip(QStatusBar& line) {
    auto* chip = new ColorChip;
    line.addPermanentWidget(chip);
    return chip;
}

PointerStatus::PointerStatus(QStatusBar& line)
    : hint_(AddHint(line)),
      position_(AddField(line, "PointerPosition", Words::tr("Position"), "-000, -000")),
      drag_(AddField(line, "DragReadout", Words::tr("Size"),
                     Words::tr("%1 %2 %3 at %4, %5").arg("000", "x", "000", "000", "000"), false)),
      chip_(AddChip(line)),
      color_(AddField(line, "PointerColor", Words::tr("Color under the pointer"), "#FFDDDDDD")),
      zoom_(AddField(line, "Zoom", Words::tr("Zoom"), "2000%")) {}

void PointerStatus::ShowPointer(const editing::Editor& editor, float x, float y) {
    pointer_ = {x, y};
    Refresh(editor);
}

void PointerStatus::Refresh(const editing::Editor& editor) {
    if (!pointer_ || !editor.DocumentExists)
        return;
    const graphics::PointF page =
        ScreenToPage(editing::MappingOf(editor), static_cast<float>(pointer_->x()),
                     static_cast<float>(pointer_->y()));
    const int column = graphics::RoundToEven(page.X), row = graphics::RoundToEven(page.Y);
    position_->setText(QString("%1, %2").arg(column).arg(row));
    ShowColor(editor.Canvas.GetPixel(column, row));
}

void PointerStatus::ShowColor(std::optional<graphics::Argb> color) {
    chip_->Show(color);
    color_->setText(color ? QColor::fromRgba(*color).name(QColor::HexArgb).toUpper() : QString());
}

void PointerStatus::ClearPointer() {
    pointer_.reset();
    position_->clear();
    ShowColor(std::nullopt);
}

void PointerStatus::ShowZoom(double zoom) {
    zoom_->setText(zoom > 0 ? QString::number(std::lround(zoom * 100)) + "%" : QString());
}

void PointerStatus::ShowHint(const editing::Editor& editor) {
    hint_->setText(editor.DocumentExists ? HintOf(editor.Tools.InUse) : QString());
}

void PointerStatus::ShowDrag(const editing::Editor& editor) {
    const auto readout = ReadoutOf(editor);
    if (!readout)
        return drag_->clear();
    const auto& [x, y, width, height] = readout->Area;
    drag_->setText(readout->IsMove ? Words::tr("at %1, %2, moved by %3, %4")
                                         .arg(x)
                                         .arg(y)
                                         .arg(readout->MovedX)
                                         .arg(readout->MovedY)
                                   : Words::tr("%1 %2 %3 at %4, %5")
                                         .arg(width)
                                         .arg(QChar(0x00D7))
                                         .arg(height)
                                         .arg(x)
                                         .arg(y));
}

}  // namespace orbelle::app
