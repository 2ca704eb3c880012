#pragma once

#include "Quietlark/Platform/Linux/Video/CaptureLines.h"

#include <memory>

namespace quietlark {

/// Gives the lines of this process's own watch over PipeWire to the capture log. They tell of the present only: a
/// look back gives the one line that holds now.
class PipeWireCaptureRunner final : public CaptureLogRunner {
public:
    explicit PipeWireCaptureRunner(std::shared_ptr<CaptureLines> lines) : lines_(std::move(lines)) {}
    ~PipeWireCaptureRunner() override { lines_->stopListening(); }
    PipeWireCaptureRunner(const PipeWireCaptureRunner&) = delete;
    PipeWireCaptureRunner& operator=(const PipeWireCaptureRunner&) = delete;

    bool launch(Received received, Ended ended) override {
        return lines_->listen(std::move(received), std::move(ended));
    }
    std::optional<std::string> lookBack() override { return lines_->current(); }
    void terminate() override { lines_->stopListening(); }

private:
    std::shared_ptr<CaptureLines> lines_;
};

} // namespace quietlark
