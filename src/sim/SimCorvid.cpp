#include "sim/SimCorvid.h"

namespace kestrel::sim {

SimCorvid::SimCorvid(SimBus& bus) : bus_(bus)
{
    setSystemVersion(6045);
    setUnit(CorvidUnit::HubA, 1020);
}

void SimCorvid::setSystemVersion(int v)
{
    auto [x, y] = encodeCorvidVersion(v);
    systemX_ = x;
    systemY_ = y;
}

void SimCorvid::setUnit(CorvidUnit type, int version)
{
    auto [x, y] = encodeCorvidVersion(version);
    unitType_ = static_cast<std::uint8_t>(type);
    unitX_ = x;
    unitY_ = y;
}

void SimCorvid::write(std::uint8_t b)
{
    ++stats_.bytesIn;
    if (transparent_) {
        bus_.write(b);
        while (bus_.available())
            out_.push_back(static_cast<std::uint8_t>(bus_.read()));
        stats_.exchanges = framesAnswered_ + bus_.stats().exchanges - busExchangesBefore_;
        return;
    }
    if (b < 128) { // a header starts a frame, also in the middle of another one
        frame_.assign(1, b);
        remaining_ = corvidLength(b);
        receiving_ = true;
        return;
    }
    if (!receiving_)
        return;
    frame_.push_back(b);
    if (remaining_ > 0) {
        --remaining_;
        return;
    }
    receiving_ = false;
    frameComplete();
}

int SimCorvid::read() { return takeReplyByte(out_, stats_); }

void SimCorvid::frameComplete()
{
    if (!checkSumsToZero(frame_)) {
        ++checksumErrors_;
        return;
    }
    if (faults.ignoreFrames > 0) {
        --faults.ignoreFrames;
        return;
    }
    const bool toggle = frame_[0] & 64;
    Bytes data;
    for (std::size_t i = 1; i + 1 < frame_.size(); ++i)
        data.push_back(frame_[i] & 127);

    if (data.empty()) { // poll
        ++polls_;
        if (!pending_.empty() && pending_.front().pollsToWait-- <= 1) {
            Bytes reply = std::move(pending_.front().data);
            pending_.pop_front();
            answer(reply, toggle);
        } else {
            answer({}, toggle);
        }
        return;
    }
    if (data[0] == 1 && data.size() == 2 && data[1] == 2) {
        answer({1, 2, systemX_, systemY_}, toggle);
        return;
    }
    if (data[0] == 1 && data.size() == 2 && data[1] == 10) {
        answer({1, 10, unitType_, unitX_, unitY_}, toggle);
        return;
    }
    if (data[0] == 1 && data.size() == 3 && data[1] == 5 && data[2] == 16) {
        ++transparentRequests_;
        answer({1, 5, 16}, toggle);
        transparent_ = true;
        busExchangesBefore_ = bus_.stats().exchanges;
        return;
    }
    if (data[0] == 0 && data.size() >= 3)
        tunnel(data);
    answer({}, toggle);
}

void SimCorvid::tunnel(const Bytes& data)
{
    const int t = data[1];
    const int inner = data[2];
    if (t < 96)
        return;
    KestrelRequest request;
    request.bidirectional = inner & 32;
    std::size_t pos = 3;
    if (inner & 16) {
        if (data.size() < 4)
            return;
        request.xaddress = data[pos++];
    }
    request.data.assign(data.begin() + static_cast<std::ptrdiff_t>(pos), data.end());
    if (request.data.empty())
        return;
    auto reply = bus_.deliver(t - 96, request);
    if (!reply)
        return;
    Bytes wrapped{0, static_cast<std::uint8_t>(96 + (reply->address & 31))};
    wrapped.push_back(static_cast<std::uint8_t>((reply->xaddress ? 112 : 96) + reply->data.size()));
    if (reply->xaddress)
        wrapped.push_back(*reply->xaddress);
    wrapped.insert(wrapped.end(), reply->data.begin(), reply->data.end());
    pending_.push_back({replyDelayPolls_, std::move(wrapped)});
}

void SimCorvid::answer(const Bytes& data, bool toggle)
{
    Bytes frame = corvidFrame(data, toggle);
    if (faults.corruptReplies > 0) {
        --faults.corruptReplies;
        frame.back() ^= 1;
    }
    ++framesAnswered_;
    stats_.exchanges = framesAnswered_;
    out_.insert(out_.end(), frame.begin(), frame.end());
}

} // namespace kestrel::sim
