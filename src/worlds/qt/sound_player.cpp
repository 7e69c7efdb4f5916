#include "worlds/qt/sound_player.h"

#include <QFile>
#include <QFileInfo>

#include <canberra.h>

namespace lumtex::qt {

namespace {

constexpr std::uint32_t theSound = 1; // the only one at a time

} // namespace

void SoundPlayer::Close::operator()(ca_context* context) const {
    ca_context_destroy(context);
}

bool SoundPlayer::play(const QString& file) {
    if (!QFileInfo(file).isFile())
        return false;
    if (!context_) {
        ca_context* made = nullptr;
        if (ca_context_create(&made) != CA_SUCCESS)
            return false;
        context_.reset(made);
    }
    ca_context_cancel(context_.get(), theSound);
    const QByteArray path = QFile::encodeName(QFileInfo(file).absoluteFilePath());
    return ca_context_play(context_.get(), theSound, CA_PROP_MEDIA_FILENAME, path.constData(), nullptr) ==
           CA_SUCCESS;
}

} // namespace lumtex::qt
