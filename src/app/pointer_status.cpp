#include "app/pointer_status.h"

#include <QColor>
#include <QPainter>
#include <QPixmap>
#include <cmath>

#include "app/tool_hint.h"
#include "editing/drag_readout.h"
#include "editing/scene_mapping.h"
#include "widgets/theme.h"
#include "widgets/words.h"

namespace orbelle::app {
namespace {

constexpr int kChipSide = 14;

// As wide as the widest text that it is to show, so that its neighbours stand still.
QLabel* AddField(QStatusBar& line, const char* name, const QString& caption,
                 const QString& widest) {
    auto* field = new QLabel;
    field->setObjectName(name);
    field->setToolTip(caption);
    field->setMinimumWidth(field->fontMetrics().horizontalAdvance(widest) + widgets::kWideSpace);
    field->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    field->setContentsMargins(0, 0, widgets::kWideSpace, 0);
    line.addPermanentWidget(field);
    return field;
}

QLabel* AddHint(QStatusBar& line) {
    auto* hint = new QLabel;
    hint->setObjectName("ToolHint");
    hint->setContentsMargins(widgets::kSpace, 0, 0, 0);
    // A long one must not make the window wider.
    hint->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    line.addWidget(hint, 1);
    return hint;
}

QLabel* AddChip(QStatusBar& line) {
    auto* chip = new QLabel;
    chip->setObjectName("PointerColorChip");
    chip->setFixedSize(kChipSide, kChipSide);
    line.addPermanentWidget(chip);
    return chip;
}

// On checks, in a frame.
QPixmap Chip(const QColor& color, double scale) {
    QPixmap chip(QSizeF(kChipSide * scale, kChipSide * scale).toSize());
    chip.setDevicePixelRatio(scale);
    chip.fill(Qt::white);
    QPainter painter(&chip);
    const QRect whole(0, 0, kChipSide, kChipSide);
    widgets::DrawChecker(painter, whole, QColor(216, 216, 216));
    painter.fillRect(whole, color);
    painter.setPen(widgets::CurrentTheme().Line);
    painter.drawRect(QRectF(whole).adjusted(0.5, 0.5, -0.5, -0.5));
    return chip;
}

}  // namespace

PointerStatus::PointerStatus(QStatusBar& line)
    : hint_(AddHint(line)),
      position_(AddField(line, "PointerPosition", Words::tr("Position"), "-000, -000")),
      drag_(AddField(line, "DragReadout", Words::tr("Size"),
                     Words::tr("%1 %2 %3 at %4, %5").arg("000", "x", "000", "000", "000"))),
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
    if (!color) {
        color_->clear();
        return chip_->clear();
    }
    const QColor shown = QColor::fromRgba(*color);
    color_->setText(shown.name(QColor::HexArgb).toUpper());
    chip_->setPixmap(Chip(shown, chip_->devicePixelRatioF()));
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
