#include "app/Program.h"

namespace ordalyn {

Program::Program(const platform::Services& services, toolkit::Toolkit& toolkit)
    : shared_(services, toolkit), main_(std::make_unique<frmMain>(shared_)) {
    // The other windows are unloaded by the main window, this one last of them.
    main_->ShutDown.Subscribe([this] {
        if (styleLoader_ != nullptr)
            styleLoader_->Unload();
        shared_.toolkit.Quit();
    });
    styleLoader_ = std::make_unique<frmXpStyleLoader>(toolkit, *main_);
}

Program::~Program() {
    styleLoader_.reset();
    main_.reset();
    shared_.Release();
}

void Program::Run() {
    shared_.toolkit.Run();
}

}  // namespace ordalyn
