// SPDX-License-Identifier: MIT
// The main function.
#include <unistd.h>

#include <clocale>
#include <csignal>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <new>

#include "app/nativewindow.h"
#include "app/viewwindow.h"
#include "utils/diagnostics.h"
#include "window/glfwymgr4.h"

namespace {

/// The terminate handler. If memory ran out, prints a line and ends the process without calling
/// destructors, which could need memory. For all other reasons, aborts.
[[noreturn]] void end_without_memory() noexcept {
    try {
        if (std::current_exception() != nullptr) {
            throw;
        }
    } catch (std::bad_alloc const&) {
        constexpr char line[] = "zanoview3: out of memory\n";
        [[maybe_unused]] ssize_t const written = write(STDERR_FILENO, line, sizeof line - 1);
        std::_Exit(EXIT_FAILURE);
    } catch (...) {
    }
    std::abort();
}

}  // namespace

int main(int argc, char** argv) {
    std::set_terminate(end_without_memory);
    std::signal(SIGXFSZ, SIG_IGN);  // so that a write() beyond RLIMIT_FSIZE fails with EFBIG
    std::setlocale(LC_ALL, "");
    libutils::escape_names_on_terminals();
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
