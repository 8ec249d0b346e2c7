// SPDX-License-Identifier: MIT
// Where the program begins and ends.
#include <clocale>
#include <cstdlib>
#include <iostream>

#include "app/nativewindow.h"
#include "app/viewwindow.h"
#include "utils/diagnostics.h"
#include "window/glfwymgr4.h"

int main(int argc, char** argv) {
    std::setlocale(LC_ALL, "");
    if (!zanoview2::native::start()) {
        libutils::error();
        std::cerr << "glfwInit() failed." << std::endl;
        return EXIT_FAILURE;
    }
    zanoview2::ViewWindow window(&argc, argv);
    wenk::glfwyMGR4* const manager = wenk::glfwyMGR4::getSingleton();
    manager->addWindow(&window, "zanoview3");
    manager->MainLoop();
    zanoview2::native::stop();
    return EXIT_SUCCESS;
}
    libutils::escape_names_on_terminals();
