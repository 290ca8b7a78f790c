// The welcome text that fades in and out on an empty scene after a start without a file.
#pragma once

#include <QObject>
#include <QTimer>

namespace orbelle::app {

class SceneView;

class WelcomeSequence : public QObject {
    Q_OBJECT

public:
    explicit WelcomeSequence(SceneView& scene);

    void Start();
    void Stop();  // the text is gone

signals:
    void Shown(bool isThere);
    // The text has stood long enough; it begins to fade.
    void Read();

private:
    void Tick();

    SceneView& scene_;
    QTimer fading_;
    int strength_ = 0;  // of the text; it counts on while the text stands
    int step_ = 0;      // what a tick adds
};

}  // namespace orbelle::app
