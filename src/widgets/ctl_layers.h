// The list of layers, the top one in the first row.
#pragma once

#include <QAbstractScrollArea>
#include <QImage>
#include <QString>
#include <vector>

namespace orbelle::widgets {

class CtlLayers : public QAbstractScrollArea {
    Q_OBJECT

public:
    explicit CtlLayers(QWidget* parent = nullptr);

    int SelectedIndex() const;  // a layer's index, 0 the bottom; -1: none
    void SetSelectedIndex(int index);

    // Rows are filled from the bottom layer up, then drawn. Width and height are the layer's on the
    // page; the text is its opacity as ".50".
    void Clean();
    void LoadImage(const QImage& image, int width, int height, const QString& opacityText,
                   bool visible);
    // One row anew.
    void UpdateImage(const QImage& image, int width, int height, int index,
                     const QString& opacityText, bool visible);
    void DrawLayers();
    int Count() const;

signals:
    // A press on the list, after the selection has followed it; also below the last row.
    void Clicked(Qt::MouseButton button, Qt::KeyboardModifiers modifiers, const QPoint& position);
};

}  // namespace orbelle::widgets
