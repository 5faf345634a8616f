#include "windows/main/frmXpStyleLoader.h"

namespace ordalyn {

namespace {

constexpr toolkit::FormDesign kDesign = {
    .name = "frmXpStyleLoader",
    .tag = "",
    .clientSize = {1500, 1500},
    .style = {.toolWindow = true},
    .controls = {},
};
constexpr toolkit::Twips kOffScreen = -20000;

}  // namespace

frmXpStyleLoader::frmXpStyleLoader(toolkit::Toolkit& toolkit, toolkit::Form& mainWindow)
    : Form(toolkit, kDesign) {
    Move({kOffScreen, kOffScreen, Width(), Height()});
    mainWindow.Show();
    Hide();
}

}  // namespace ordalyn
