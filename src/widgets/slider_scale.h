// The scale between the numbers of NumberSlider and the places of the thumb on its track.
#pragma once

namespace orbelle::widgets {

// Where the thumb's left edge can be, in pixels from the track's beginning: 0 to this.
inline constexpr int kTrackTravel = 100;

// The track reaches from 0 to MaxValue.
struct SliderScale {
    int MaxValue = 0;

    // What a value and the thumb's place become when the pointer drags the thumb to `x` on the
    // track. Beyond the ends of the scale the value stays at the end, and the thumb at its own.
    struct Drag {
        int Value;
        double Place;
    };
    Drag DragTo(double x) const;

    // Of the thumb's left edge. The middle of the thumb, not its edge, marks a value: so dragging
    // the thumb by its middle keeps it under the pointer.
    double PlaceFromValue(int value) const;

private:
    double ValuePerPixel() const;
};

}  // namespace orbelle::widgets
