#pragma once
// frmDisassKonfig: the two switches of the disassembler, changed at once.

#include <QDialog>
#include <functional>

#include "disassembler/disassembler.h"

namespace korvex::gui {

class DisassemblerOptionsDialog : public QDialog {
    Q_OBJECT

  public:
    // `help` opens the help topic of the dialog.
    DisassemblerOptionsDialog(DisassemblerOptions& options, std::function<void(int)> help,
                              QWidget* parent = nullptr);

    static constexpr int kHelpTopic = 1830;
};

}  // namespace korvex::gui
