#pragma once
// The host of the command-line tools: boxes go to standard error, the
// dialog's appended lines to standard output.

#include <iostream>
#include <ostream>

#include "base/host.h"

namespace korvex {

class CliHost : public Host {
  public:
    explicit CliHost(std::ostream& out = std::cout, std::ostream& err = std::cerr)
        : out_(out), err_(err) {}

    MessageAnswer messageBox(const std::string& title, const std::string& text,
                             MessageButtons buttons, MessageIcon icon) override;
    void processPendingEvents() override {}
    void setDialogText(const std::string& text) override { dialogText_ = text; }
    void appendDialogText(const std::string& text) override;
    std::optional<std::string> openWindowText(const std::string&) override { return std::nullopt; }

    const std::string& dialogText() const { return dialogText_; }

  private:
    std::ostream& out_;
    std::ostream& err_;
    std::string dialogText_;
};

}  // namespace korvex
