#include "sim/SimBus.h"

namespace kestrel::sim {

SimModule& SimBus::addModule(int busAddress, std::optional<std::uint8_t> xaddress,
                             std::array<std::uint8_t, 4> firmwareVersion)
{
    modules_.push_back(std::make_unique<SimModule>(busAddress, xaddress, firmwareVersion));
    return *modules_.back();
}

SimModule* SimBus::module(int busAddress)
{
    for (auto& m : modules_)
        if (m->busAddress() == busAddress)
            return m.get();
    return nullptr;
}

std::vector<SimModule*> SimBus::modules()
{
    std::vector<SimModule*> all;
    for (auto& m : modules_)
        all.push_back(m.get());
    return all;
}

void SimBus::write(std::uint8_t b)
{
    ++stats_.bytesIn;
    Bytes sent;
    for (auto& m : modules_)
        m->receiveByte(b, sent);
    out_.insert(out_.end(), sent.begin(), sent.end());
    countExchanges();
}

int SimBus::read() { return takeReplyByte(out_, stats_); }

std::optional<KestrelReply> SimBus::deliver(int busAddress, const KestrelRequest& request)
{
    std::optional<KestrelReply> reply;
    for (auto& m : modules_) {
        if (m->busAddress() != busAddress)
            continue;
        auto r = m->handle(request);
        if (r && !reply)
            reply = std::move(r);
    }
    countExchanges();
    return reply;
}

void SimBus::countExchanges()
{
    long accepted = 0;
    for (auto& m : modules_)
        accepted += m->stats().requests;
    stats_.exchanges = accepted - exchangeBase_;
}

void SimBus::resetStats()
{
    stats_ = {};
    exchangeBase_ = 0;
    countExchanges();
    exchangeBase_ = stats_.exchanges;
    stats_.exchanges = 0;
}

} // namespace kestrel::sim
