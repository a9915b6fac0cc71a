#include "samples/sounds.h"

#include "samples/noise.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

#include <QtEndian>

namespace samples {
namespace {

constexpr int kRate = 22050;
constexpr double kTurn = 2 * std::numbers::pi;

using Sound = std::vector<double>;

Sound Silence(double seconds) {
    return Sound(static_cast<size_t>(seconds * kRate));
}

// Adds voice(t), t in seconds from start, from there on.
template <class Voice>
void Add(Sound& sound, double start, Voice voice) {
    const auto first = static_cast<size_t>(start * kRate);
    for (size_t i = first; i < sound.size(); ++i) sound[i] += voice(static_cast<double>(i - first) / kRate);
}

// The frequency of a key, 69 being the a of 440 Hz.
double Pitch(int key) {
    return 440 * std::pow(2, (key - 69) / 12.0);
}

void AppendNumber(QByteArray& bytes, qint64 value, int size) {
    const qint64 little = qToLittleEndian(value);
    bytes.append(reinterpret_cast<const char*>(&little), size);
}

// The file of a sound, brought to an even loudness, its first and last moments faded.
QByteArray Wave(const Sound& sound) {
    double peak = 0;
    for (const double level : sound) peak = std::max(peak, std::abs(level));
    const auto length = static_cast<qint64>(sound.size()) * 2;
    QByteArray bytes("RIFF");
    AppendNumber(bytes, 36 + length, 4);
    bytes.append("WAVEfmt ");
    AppendNumber(bytes, 16, 4);         // length of this part
    AppendNumber(bytes, 1, 2);          // plain samples
    AppendNumber(bytes, 1, 2);          // one channel
    AppendNumber(bytes, kRate, 4);      //
    AppendNumber(bytes, kRate * 2, 4);  // bytes a second
    AppendNumber(bytes, 2, 2);          // bytes a sample
    AppendNumber(bytes, 16, 2);         // bits a sample
    bytes.append("data");
    AppendNumber(bytes, length, 4);
    for (size_t i = 0; i < sound.size(); ++i) {
        const double edge = std::min({1.0, static_cast<double>(i) / 200, static_cast<double>(sound.size() - i) / 4000});
        AppendNumber(bytes, std::lround(sound[i] / peak * edge * 26000), 2);
    }
    return bytes;
}

}  // namespace

QByteArray Chime() {
    Sound sound = Silence(4);
    const int keys[] = {72, 76, 79, 84};
    for (int i = 0; i < 4; ++i) {
        const double pitch = Pitch(keys[i]);
        Add(sound, 0.22 * i, [&](double t) {
            return std::exp(-1.3 * t) * std::sin(kTurn * pitch * t) +
                   0.5 * std::exp(-2.5 * t) * std::sin(kTurn * pitch * 2.76 * t) +
                   0.25 * std::exp(-5 * t) * std::sin(kTurn * pitch * 5.4 * t);
        });
    }
    return Wave(sound);
}

QByteArray Surf() {
    Sound sound = Silence(9);
    Random random(5);
    double low = 0;
    double lower = 0;
    for (size_t i = 0; i < sound.size(); ++i) {
        const double t = static_cast<double>(i) / kRate;
        const double tide = std::pow(0.5 - 0.5 * std::cos(kTurn * t / 3), 2);
        const double brightness = 0.04 + 0.3 * tide;  // a wave that breaks hisses, one that runs out murmurs
        low += brightness * (random.Between(-1, 1) - low);
        lower += 0.02 * (low - lower);
        sound[i] = (0.15 + tide) * (low - 0.5 * lower) + 0.6 * lower;
    }
    return Wave(sound);
}

QByteArray Melody() {
    struct Note {
        int Key;
        double Beats;
    };
    constexpr Note kTune[] = {{67, 1}, {71, 1}, {74, 1}, {76, 1.5}, {74, 0.5}, {71, 1}, {69, 1}, {72, 1},
                              {71, 1}, {69, 1}, {67, 1}, {64, 1},   {62, 1},   {66, 1}, {67, 3}};
    Sound sound = Silence(7);
    double start = 0.05;
    for (const Note& note : kTune) {
        const double pitch = Pitch(note.Key);
        Add(sound, start, [&](double t) {
            double string = 0;
            for (int overtone = 1; overtone <= 6; ++overtone) {
                string += std::exp(-(1.6 + overtone) * t) * std::sin(kTurn * pitch * overtone * t) / overtone;
            }
            return string;
        });
        start += 0.36 * note.Beats;
    }
    return Wave(sound);
}

}  // namespace samples
