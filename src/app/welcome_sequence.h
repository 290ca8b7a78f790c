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
    // The text has stood long enough; it begins to fade.
    void Read();

private:
    void Tick();

    SceneView& scene_;
    QTimer timer7_;
    int tag_ = 0;
    int welcomeStep_ = 10;  // what the tag goes up by
};

}  // namespace orbelle::app
