#include "platform/scale.h"

#include "platform/failure.h"

namespace vorlane {

namespace {

double UnitsPerInch(ScaleMode mode) {
    switch (mode) {
        case ScaleMode::Twips:
            return 1440;
        case ScaleMode::Points:
            return 72;
        case ScaleMode::Pixels:
            return 96;
        case ScaleMode::Inches:
            return 1;
        case ScaleMode::Millimeters:
            return 25.4;
        case ScaleMode::Centimeters:
            return 2.54;
        case ScaleMode::HiMetric:
            return 2540;
    }
    throw failures::InvalidCall();
}

}  // namespace

float Rescale(double value, ScaleMode from, ScaleMode to) {
    const double source = UnitsPerInch(from);
    const double target = UnitsPerInch(to);
    return static_cast<float>(from == to ? value : value * target / source);
}

}  // namespace vorlane
