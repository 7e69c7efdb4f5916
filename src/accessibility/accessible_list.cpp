#include "accessibility/accessible_list.h"

#include "accessibility/change_stream.h"
#include "accessibility/list_reader.h"

namespace lumtex::accessibility {

AccessibleList::AccessibleList(lmListView& list) : core_(&ListReader::coreOf(list)) {
    core_->life().watch(this);
    if (!core_->life().isWatchedBy(*this))
        core_ = nullptr;
}

AccessibleList::~AccessibleList() {
    if (stream_)
        stream_->close();
    if (core_ != nullptr)
        core_->life().watch(nullptr);
}

void AccessibleList::listen(ChangeListener listener) {
    if (stream_)
        stream_->close();
    stream_.reset();
    if (core_ != nullptr && listener)
        stream_ = std::make_shared<ChangeStream>(*this, *core_, std::move(listener));
}

void AccessibleList::controlRests() noexcept {
    // A listener may take this object away.
    const std::shared_ptr<ChangeStream> stream = stream_;
    if (stream)
        stream->look();
}

void AccessibleList::controlEnds() noexcept {
    core_ = nullptr;
    if (stream_)
        stream_->close();
    stream_.reset();
}

} // namespace lumtex::accessibility
