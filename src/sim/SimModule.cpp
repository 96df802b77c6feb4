#include "sim/SimModule.h"

#include <algorithm>

namespace kestrel::sim {

namespace {
// Commands of the module.
constexpr int kReadItem = 112, kWriteItem = 96;
constexpr int kReadLayout = 114, kReadStep = 115, kReadEventOn = 116, kReadEventOff = 117,
              kReadAddrConfig = 118;
constexpr int kWriteLayout = 98, kWriteStep = 99, kWriteInitOrEventOn = 100, kWriteEventOff = 101,
              kWriteAddrConfig = 102;
constexpr int kReadActiveConfig = 81, kReadFlashConfig = 113; // "Q", "q"
constexpr int kSendActiveConfig = 65, kSendFlashConfig = 97;  // "A", "a"
constexpr int kLive = 0;
constexpr int kLivePwm = 38, kLivePwmSlow = 54, kLiveServo = 39, kLiveServoDynamic = 55;

Bytes ack(const Bytes& d) { return {d[0], d[1]}; }
} // namespace

SimModule::SimModule(int busAddress, std::optional<std::uint8_t> xaddress,
                     std::array<std::uint8_t, 4> firmwareVersion)
    : busAddress_(busAddress), hasXAddress_(xaddress.has_value())
{
    memory_.firmwareVersion = firmwareVersion;
    if (xaddress)
        memory_.extendedAddress = *xaddress;
    memory_.powerUp();
    factory_ = memory_;
}

void SimModule::setFirmwareVersion(std::array<std::uint8_t, 4> v)
{
    memory_.firmwareVersion = v;
    factory_.firmwareVersion = v;
}

void SimModule::receiveByte(std::uint8_t b, Bytes& out)
{
    if (b < 128) { // a frame starts, also in the middle of another one
        frame_.assign(1, b);
        rx_ = Rx::Header;
        return;
    }
    if (rx_ == Rx::Idle)
        return; // wake-up bytes and other noise between frames
    frame_.push_back(b);
    switch (rx_) {
    case Rx::Header: {
        const int h = b & 127;
        if (!(h & 64)) { // not a frame of this protocol (e.g. a legacy four-byte message)
            rx_ = Rx::Idle;
            return;
        }
        remaining_ = h & 15;
        rx_ = (h & 16) ? Rx::XAddress : (remaining_ ? Rx::Data : Rx::Check);
        return;
    }
    case Rx::XAddress:
        rx_ = remaining_ ? Rx::Data : Rx::Check;
        return;
    case Rx::Data:
        if (--remaining_ == 0)
            rx_ = Rx::Check;
        return;
    case Rx::Check:
        rx_ = Rx::Idle;
        frameComplete(out);
        return;
    case Rx::Idle:
        return;
    }
}

void SimModule::frameComplete(Bytes& out)
{
    if (!checkSumsToZero(frame_)) {
        ++stats_.checksumErrors;
        return;
    }
    if (busAddress_ > 15 || (frame_[0] & 63) != busAddress_ * 4 + 3)
        return;
    const int header = frame_[1] & 127;
    KestrelRequest request;
    request.bidirectional = header & 32;
    std::size_t pos = 2;
    if (header & 16)
        request.xaddress = frame_[pos++] & 127;
    for (; pos + 1 < frame_.size(); ++pos)
        request.data.push_back(frame_[pos] & 127);

    auto reply = handle(request);
    if (!reply)
        return;
    const std::uint8_t toggle = frame_[0] & 64;
    const auto addressByte = static_cast<std::uint8_t>(((reply->address & 15) * 4 + 3) | toggle);
    const auto header7 = static_cast<std::uint8_t>(96 + reply->data.size() + (reply->xaddress ? 16 : 0));
    Bytes frame = busFrame(addressByte, header7, reply->xaddress, reply->data);
    for (auto g : faults.garbage)
        out.push_back(static_cast<std::uint8_t>(g | 128));
    if (faults.corruptCopies > 0) {
        --faults.corruptCopies;
        Bytes bad = frame;
        bad.back() ^= 1; // still a byte with bit 7 set, but the sum no longer fits
        out.insert(out.end(), bad.begin(), bad.end());
    }
    out.insert(out.end(), frame.begin(), frame.end());
}

std::optional<KestrelReply> SimModule::handle(const KestrelRequest& request)
{
    if (request.xaddress && (!hasXAddress_ || (*request.xaddress & 127) != memory_.extendedAddress))
        return std::nullopt;
    ++stats_.framesAccepted;
    if (!request.data.empty())
        ++stats_.requests;
    auto data = execute(request.data);
    if (!data) {
        ++stats_.unknownRequests;
        return std::nullopt;
    }
    if (!request.bidirectional)
        return std::nullopt;

    const int command = request.data[0];
    const int item = request.data.size() > 1 ? request.data[1] : -1;
    auto refusal = faults.refused.find({command, item});
    if (refusal == faults.refused.end())
        refusal = faults.refused.find({command, -1});
    if (refusal != faults.refused.end()) {
        switch (refusal->second) {
        case Refusal::NoReply:
            return std::nullopt;
        case Refusal::WrongEcho:
            (*data)[0] = static_cast<std::uint8_t>((command + 1) & 127);
            break;
        case Refusal::WrongLength:
            if (data->size() < 15)
                data->push_back(0);
            else
                data->pop_back();
            break;
        }
    }
    if (faults.dropReplies > 0) {
        --faults.dropReplies;
        ++stats_.repliesDropped;
        return std::nullopt;
    }
    ++stats_.repliesSent;
    return KestrelReply{faults.answerAs.value_or(busAddress_), request.xaddress, std::move(*data)};
}

std::optional<Bytes> SimModule::execute(const Bytes& d)
{
    const std::size_t n = d.size();
    if (n < 2)
        return std::nullopt;
    const int command = d[0];

    if (command == kReadItem) {
        Bytes values;
        if (n != 2 || !memory_.readItem(d[1], values))
            return std::nullopt;
        Bytes reply{d[0], d[1]};
        reply.insert(reply.end(), values.begin(), values.end());
        return reply;
    }
    if (command == kWriteItem) {
        const Bytes payload(d.begin() + 2, d.end());
        if (d[1] == 0) {
            if (!std::equal(payload.begin(), payload.end(), kEraseConfirmation.begin(),
                            kEraseConfirmation.end()))
                return std::nullopt;
            memory_ = factory_;
            ++stats_.erases;
            return ack(d);
        }
        if (!memory_.writeItem(d[1], payload))
            return std::nullopt;
        return ack(d);
    }
    if (command == kLive) {
        if (n != 4 || d[2] >= kModulePins)
            return std::nullopt;
        const int sub = d[1];
        if (sub != kLivePwm && sub != kLivePwmSlow && sub != kLiveServo && sub != kLiveServoDynamic)
            return std::nullopt;
        memory_.pins[d[2]].setOutputValue(d[3]);
        lastLive = {sub, d[2], d[3]};
        return ack(d);
    }

    // Pin commands: the second byte is the pin.
    if (d[1] >= kModulePins)
        return std::nullopt;
    PinMemory& pin = memory_.pins[d[1]];
    switch (command) {
    case kReadLayout:
        if (n != 2)
            return std::nullopt;
        return Bytes{d[0], d[1], pin.aspectLayout};
    case kReadStep: {
        if (n != 4 || d[2] >= kStepAspects || d[3] >= kStepSteps)
            return std::nullopt;
        const auto& step = pin.steps[d[2]][d[3]];
        Bytes reply{d[0], d[1], d[2], d[3]};
        reply.insert(reply.end(), step.begin(), step.end());
        return reply;
    }
    case kReadEventOn: {
        if (n != 2)
            return std::nullopt;
        Bytes reply{d[0], d[1], static_cast<std::uint8_t>(112 + pin.initialAspect)};
        reply.insert(reply.end(), pin.eventOn.begin(), pin.eventOn.end());
        return reply;
    }
    case kReadEventOff: {
        if (n != 2)
            return std::nullopt;
        Bytes reply{d[0], d[1]};
        reply.insert(reply.end(), pin.eventOff.begin(), pin.eventOff.end());
        return reply;
    }
    case kReadAddrConfig: {
        if (n != 2)
            return std::nullopt;
        Bytes tagged{static_cast<std::uint8_t>((pin.xdcc ? 8 : 0) + pin.dccCount),
                     static_cast<std::uint8_t>(16 + pin.lynxCount),
                     static_cast<std::uint8_t>(64 + pin.deviceOffset)};
        const int rotation = ((addressConfigRotation % 3) + 3) % 3;
        std::rotate(tagged.begin(), tagged.begin() + rotation, tagged.end());
        Bytes reply{d[0], d[1]};
        reply.insert(reply.end(), tagged.begin(), tagged.end());
        return reply;
    }
    case kWriteLayout:
        if (n != 3)
            return std::nullopt;
        pin.aspectLayout = d[2];
        return ack(d);
    case kWriteStep: {
        if (n != 9 || d[2] >= kStepAspects || d[3] >= kStepSteps)
            return std::nullopt;
        auto& step = pin.steps[d[2]][d[3]];
        std::copy(d.begin() + 4, d.end(), step.begin());
        return ack(d);
    }
    case kWriteInitOrEventOn:
        if (n == 3) { // initial aspect entry, tag 7 in the high nibble
            if ((d[2] >> 4) != 7)
                return std::nullopt;
            pin.initialAspect = d[2] & 15;
            return ack(d);
        }
        if (n == 6) {
            std::copy(d.begin() + 2, d.end(), pin.eventOn.begin());
            return ack(d);
        }
        return std::nullopt;
    case kWriteEventOff:
        if (n != 6)
            return std::nullopt;
        std::copy(d.begin() + 2, d.end(), pin.eventOff.begin());
        return ack(d);
    case kWriteAddrConfig: {
        if (n != 5)
            return std::nullopt;
        PinMemory updated = pin;
        for (std::size_t i = 2; i < 5; ++i) {
            const int b = d[i];
            if (b < 16) {
                updated.dccCount = b & 7;
                updated.xdcc = b & 8;
            } else if (b < 32) {
                updated.lynxCount = b & 7;
            } else if (b >= 64 && b < 96) {
                updated.deviceOffset = b & 31;
            } else {
                return std::nullopt;
            }
        }
        pin = updated;
        return ack(d);
    }
    case kReadActiveConfig:
    case kReadFlashConfig: {
        if (n != 2)
            return std::nullopt;
        const auto& config = command == kReadActiveConfig ? pin.activeConfig : pin.flashConfig;
        Bytes reply{d[0], d[1]};
        reply.insert(reply.end(), config.begin(), config.end());
        return reply;
    }
    case kSendActiveConfig:
    case kSendFlashConfig:
        if (n < 3)
            return std::nullopt;
        (command == kSendActiveConfig ? pin.activeConfig : pin.flashConfig).assign(d.begin() + 2, d.end());
        return ack(d);
    default:
        return std::nullopt;
    }
}

} // namespace kestrel::sim
