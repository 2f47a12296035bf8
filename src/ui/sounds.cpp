#include "ui/sounds.h"

#include <QApplication>
#include <QAudioDevice>
#include <QMediaDevices>
#include <QUrl>

#include "ui/text.h"

namespace kickwell {
namespace {

constexpr const char* Files[] = {"whistle.wav", "goal.wav", "boo.wav"};  ///< In the order of Sound.

}  // namespace

void Sounds::Load(const ProgramFolder& folder) {
  silent_ = QMediaDevices::defaultAudioOutput().isNull();
  if (silent_) return;
  for (std::size_t i = 0; i < effects_.size(); ++i) {
    effects_[i] = std::make_unique<QSoundEffect>();
    effects_[i]->setSource(QUrl::fromLocalFile(ToQt((folder.Sounds() / Files[i]).string())));
  }
}

void Sounds::Play(Sound sound) {
  QSoundEffect* const effect = effects_[static_cast<std::size_t>(sound)].get();
  if (silent_ || effect == nullptr) return;
  if (effect->status() == QSoundEffect::Error) {
    QApplication::beep();
  } else {
    effect->play();
  }
}

}  // namespace kickwell
