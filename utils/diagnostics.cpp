// SPDX-License-Identifier: MIT
// The hook of the error paths, and helpers for lines of text on streams.
#include "utils/diagnostics.h"

#include <langinfo.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <cstring>
#include <streambuf>

namespace libutils {

namespace {

/// The kind of a stream, stored in the stream.
enum terminal_t : long { NO_TERMINAL, UTF8_TERMINAL, BYTE_TERMINAL };

long& terminal_mark(std::ostream& out) {
    static int const stream_index = std::ios_base::xalloc();
    return out.iword(stream_index);
}

/// Keeps the first bytes that are written to it and drops the others.
class reason_buffer_t : public std::streambuf {
  public:
    reason_buffer_t() { clear(); }

    void clear() { setp(m_text.data(), m_text.data() + m_text.size()); }
    std::string_view text() const { return {pbase(), static_cast<std::size_t>(pptr() - pbase())}; }

  protected:
    int_type overflow(int_type c) override { return traits_type::not_eof(c); }

  private:
    std::array<char, 255> m_text{};
};

struct recorder_t {
    reason_buffer_t buffer;
    std::ostream out{&buffer};
};

recorder_t& recorder() {
    static recorder_t s_recorder;
    return s_recorder;
}

}  // namespace

void error() {}

std::ostream* begin_failure_reason() {
    recorder_t& record = recorder();
    return record.buffer.text().empty() ? &record.out : nullptr;
}

bool reject_errno(int error) {
    return reject(error != 0 ? std::strerror(error) : "read error");
}

std::string_view failure_reason() {
    std::string_view const text = recorder().buffer.text();
    return text.substr(0, text.size() - (text.ends_with('.') ? 1 : 0));
}

void clear_failure_reason() {
    recorder().buffer.clear();
    recorder().out.clear();
}

void escape_names_on_terminals() {
    bool const is_utf8 = std::strcmp(nl_langinfo(CODESET), "UTF-8") == 0;
    for (auto const& [out, fd] :
         {std::pair{&std::cout, STDOUT_FILENO}, std::pair{&std::cerr, STDERR_FILENO}}) {
        if (isatty(fd) != 0) {
            terminal_mark(*out) = is_utf8 ? UTF8_TERMINAL : BYTE_TERMINAL;
        }
    }
}

std::string escape_controls(std::string_view text, bool as_bytes) {
    constexpr unsigned char lead = 0xC2;  // of U+0080 to U+00BF in UTF-8
    auto const byte_at = [text](std::size_t i) {
        return static_cast<unsigned char>(i < text.size() ? text[i] : 0);
    };
    auto const is_upper = [](unsigned char c) { return c >= 0x80 && c <= 0x9F; };
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        unsigned char const c = byte_at(i);
        bool const is_pair = (c == lead && is_upper(byte_at(i + 1))) ||
                             (is_upper(c) && i > 0 && byte_at(i - 1) == lead);
        if (c < 0x20 || c == 0x7F || (as_bytes ? is_upper(c) : is_pair)) {
            std::array<char, 5> escape{};
            std::snprintf(escape.data(), escape.size(), "\\x%02x", c);
            out += escape.data();
        } else {
            out += text[i];
        }
    }
    return out;
}

std::ostream& operator<<(std::ostream& out, _putspace const& space) {
    return out << putcn(' ', space.n);
}

std::ostream& operator<<(std::ostream& out, _putcn const& run) {
    for (unsigned long i = 0; i < run.n; ++i) {
        out.put(run.c);
    }
    return out;
}

std::ostream& operator<<(std::ostream& out, _putn const& bytes) {
    for (unsigned long i = 0; i < bytes.n; ++i) {
        out.put(bytes.text[i]);
    }
    return out;
}

std::ostream& operator<<(std::ostream& out, _putname const& name) {
    long const terminal = terminal_mark(out);
    if (terminal == NO_TERMINAL) {
        return out << name.text;
    }
    return out << escape_controls(name.text, terminal == BYTE_TERMINAL);
}

}  // namespace libutils
