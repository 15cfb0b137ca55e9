#include "desktop/sound.h"

#include <QAudioDevice>
#include <QAudioFormat>
#include <QAudioSink>
#include <QBuffer>
#include <QMediaDevices>
#include <algorithm>
#include <cmath>
#include <iterator>
#include <map>
#include <numbers>
#include <random>
#include <utility>

namespace grapplemont::desktop {

namespace {

constexpr double kLoudest = 32767;

double Turns(double hertz, double seconds) {
  return std::sin(2 * std::numbers::pi * hertz * seconds);
}

/// How a struck bell sounds: the tones that are heard, and how long each of them lasts.
struct Partial {
  double Ratio, Level, Seconds;  // of the strike tone; at first; until a third of it is left
};
constexpr Partial kPartials[] = {{0.5, 0.25, 1.1}, {1, 1, 0.75},       {1.183, 0.6, 0.6},
                                 {2, 0.55, 0.4},   {2.74, 0.35, 0.25}, {3.76, 0.25, 0.16},
                                 {5.4, 0.2, 0.08}};

double BellAt(double seconds) {
  constexpr double kStrike = 870, kAttack = 0.002;
  double sum = 0;
  for (const Partial& partial : kPartials)
    sum += partial.Level * Turns(kStrike * partial.Ratio, seconds) *
           std::exp(-seconds / partial.Seconds);
  return sum * std::min(1.0, seconds / kAttack);
}

/// Noise that is let through around one frequency.
class Band {
 public:
  Band(double hertz, double width) {
    const double turn = 2 * std::numbers::pi * hertz / kSamplesASecond;
    radius_ = std::exp(-std::numbers::pi * width / kSamplesASecond);
    turn_ = 2 * radius_ * std::cos(turn);
  }
  double Through(double noise) {
    const double now = (1 - radius_) * noise + turn_ * last_ - radius_ * radius_ * before_;
    before_ = std::exchange(last_, now);
    return now;
  }

 private:
  double radius_, turn_, last_ = 0, before_ = 0;
};

constexpr double kCrowdSeconds = 4;

/// Swells within the first second, then ebbs.
double SwellAt(double seconds) {
  constexpr double kRise = 0.9;
  const double rise = std::min(1.0, seconds / kRise);
  const double ebb = std::clamp((kCrowdSeconds - seconds) / (kCrowdSeconds - kRise), 0.0, 1.0);
  return rise * rise * ebb * std::sqrt(ebb) * (1 + 0.12 * Turns(3.1, seconds));
}

std::vector<double> Bell() {
  constexpr double kBellSeconds = 2.5;
  std::vector<double> wave;
  for (int i = 0; i < kBellSeconds * kSamplesASecond; ++i)
    wave.push_back(BellAt(1.0 * i / kSamplesASecond));
  return wave;
}

/// Voices at the vowels of a cheer, and the hiss of hands above them.
std::vector<double> Crowd() {
  std::minstd_rand chance(1);
  Band bands[] = {{480, 260}, {760, 320}, {1250, 500}, {2600, 1800}};
  std::vector<double> wave;
  for (int i = 0; i < kCrowdSeconds * kSamplesASecond; ++i) {
    const double noise =
        2.0 * static_cast<double>(chance()) / static_cast<double>(std::minstd_rand::max()) - 1;
    double sum = 0;
    for (Band& band : bands) sum += band.Through(noise);
    wave.push_back(sum * SwellAt(1.0 * i / kSamplesASecond));
  }
  return wave;
}

}  // namespace

std::vector<std::int16_t> SamplesOf(ui::Sound sound) {
  std::vector<double> wave = sound == ui::Sound::Bell ? Bell() : Crowd();
  // The end is silence, whatever was left.
  const std::size_t fade = std::min<std::size_t>(wave.size(), kSamplesASecond / 20);
  for (std::size_t i = 0; i < fade; ++i)
    wave[wave.size() - 1 - i] *= static_cast<double>(i) / static_cast<double>(fade);
  double most = 0;
  for (const double value : wave) most = std::max(most, std::abs(value));
  std::vector<std::int16_t> samples;
  std::ranges::transform(wave, std::back_inserter(samples), [most](double value) {
    return static_cast<std::int16_t>(std::lround(value / most * kLoudest));
  });
  return samples;
}

/// What lives in the speaker's thread. The system may take its time there.
struct Speaker::Voice : QObject {
  struct Track {
    QByteArray Bytes;
    std::unique_ptr<QBuffer> From;
    std::unique_ptr<QAudioSink> Out;
  };
  std::map<ui::Sound, Track> Tracks;

  void Play(ui::Sound sound, int volume) {
    const QAudioDevice device = QMediaDevices::defaultAudioOutput();
    if (device.isNull()) return;
    Track& track = Tracks[sound];
    if (track.Bytes.isEmpty()) {
      const std::vector<std::int16_t> samples = SamplesOf(sound);
      track.Bytes = QByteArray(reinterpret_cast<const char*>(samples.data()),
                               static_cast<qsizetype>(samples.size() * sizeof(samples.front())));
    }
    track.Out.reset();
    track.From = std::make_unique<QBuffer>(&track.Bytes);
    track.From->open(QIODevice::ReadOnly);
    QAudioFormat format;
    format.setSampleRate(kSamplesASecond);
    format.setChannelCount(1);
    format.setSampleFormat(QAudioFormat::Int16);
    track.Out = std::make_unique<QAudioSink>(device, format);
    track.Out->setVolume(volume / 100.0);
    track.Out->start(track.From.get());
  }
};

Speaker::Speaker() : thread_(std::make_unique<QThread>()), voice_(new Voice) {
  voice_->moveToThread(thread_.get());
  QObject::connect(thread_.get(), &QThread::finished, voice_, &QObject::deleteLater);
  thread_->start();
}

Speaker::~Speaker() {
  constexpr unsigned long kPatience = 500;  // milliseconds
  thread_->quit();
  // A system that does not answer is left to itself; the program ends.
  if (!thread_->wait(kPatience)) thread_.release();
}

/// While the system is slow, the last call of a sound stands for those before it.
void Speaker::Play(ui::Sound sound, int volume) {
  std::atomic<int>& asked = asked_[static_cast<std::size_t>(sound)];
  const int mine = ++asked;
  QMetaObject::invokeMethod(
      voice_,
      [&asked, mine, voice = voice_, sound, volume] {
        if (asked == mine) voice->Play(sound, volume);
      },
      Qt::QueuedConnection);
}

}  // namespace grapplemont::desktop
