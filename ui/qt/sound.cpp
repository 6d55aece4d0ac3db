#include "ui/qt/sound.h"

#include <QSoundEffect>
#include <QUrl>

#include "ui/waveFile.h"

namespace zelvs {

struct WaveSound::Player {
  QSoundEffect effect;
};

WaveSound::WaveSound() = default;
WaveSound::~WaveSound() = default;

bool WaveSound::open(const std::string& path) {
  path_ = path;
  player_.reset();
  return isWaveFile(path);
}

void WaveSound::play() {
  if (player_ == nullptr) {
    player_ = std::make_unique<Player>();
    player_->effect.setSource(QUrl::fromLocalFile(QString::fromStdString(path_)));
  }
  player_->effect.play();
}

}  // namespace zelvs
