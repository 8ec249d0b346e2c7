// SPDX-License-Identifier: MIT
// The default implementations of the window events, which do nothing.
#include "window/glutyapi.h"

namespace wenk {

void glutyAPI::reshape(int, int) {}
void glutyAPI::display() {}
void glutyAPI::keyboard(unsigned char, int, int) {}
void glutyAPI::specialkey(int, int, int) {}
void glutyAPI::mouse(int, int, int, int) {}
void glutyAPI::motion(int, int) {}
void glutyAPI::passivemotion(int, int) {}
void glutyAPI::idle() {}
void glutyAPI::init() {}
glutyAPI::~glutyAPI() = default;

void glutyAPI4::keyboardup(unsigned char, int, int) {}
void glutyAPI4::specialkeyup(int, int, int) {}
void glutyAPI4::mousewheel(int, int, int, int) {}
void glutyAPI4::drop(int, char const**) {}

}  // namespace wenk
