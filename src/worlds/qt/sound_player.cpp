#include "worlds/qt/sound_player.h"

#include <QFile>
#include <QFileInfo>

#include <canberra.h>

namespace lumtex::qt {

namespace {

/// Null where there is no memory. Never destroyed: that unloads the code of the devices, in which the thread
/// of a sound may still be on its way out, even of one that was cancelled.
ca_context* devices() {
    static ca_context* const context = [] {
        ca_context* made = nullptr;
        return ca_context_create(&made) == CA_SUCCESS ? made : nullptr;
    }();
    return context;
}

} // namespace

SoundPlayer::SoundPlayer() {
    static std::uint32_t players = 0;
    sound_ = ++players;
}

SoundPlayer::~SoundPlayer() {
    if (played_)
        ca_context_cancel(devices(), sound_);
}

bool SoundPlayer::play(const QString& file) {
    if (!QFileInfo(file).isFile() || devices() == nullptr)
        return false;
    played_ = true;
    ca_context_cancel(devices(), sound_);
    const QByteArray path = QFile::encodeName(QFileInfo(file).absoluteFilePath());
    return ca_context_play(devices(), sound_, CA_PROP_MEDIA_FILENAME, path.constData(), nullptr) ==
           CA_SUCCESS;
}

} // namespace lumtex::qt
