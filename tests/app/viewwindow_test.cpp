// SPDX-License-Identifier: MIT
// Events of the viewer's window, without a screen: GLFW and OpenGL are replaced.
#include "app/viewwindow.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <iterator>
#include <memory>
#include <regex>
#include <utility>

#include "app/zvwfile.h"
#include "options/option.h"
#include "tests/scene/scenefiles.h"
#include "tests/support/files/transcript.h"
#include "tests/support/gl/glrecorder.h"
#include "tests/support/glfw/fakeglfw.h"
#include "window/glfwymgr4.h"

namespace {

using zanoview2::ViewWindow;

struct word_t {
    std::string text;
    std::string word;
};

/// Calls as the sessions show them. Without "(" at its end, `text` is followed by arguments to
/// show.
word_t const calls[] = {{"glDeleteLists(", "deletes list"},
                        {"glNewList(", "makes list"},
                        {"glClear(", "draws"},
                        {"glViewport(0, 0, ", "viewport "},
                        {"glfwSetWindowTitle(w1, ", "title "},
                        {"glfwSetWindowSize(w1, ", "window "},
                        {"glfwSetWindowPos(w1, ", "position "},
                        {"glfwIconifyWindow(", "iconifies"},
                        {"glfwRestoreWindow(", "restores"},
                        {"glfwSwapBuffers(", "swaps"},
                        {"glfwPostEmptyEvent(", "redisplay"}};

/// Returns "" for a call that the sessions don't show.
std::string words_for(std::string const& call) {
    for (word_t const& row : calls) {
        if (call.starts_with(row.text)) {
            std::size_t const begin = row.text.size();
            bool const has_arguments = !row.text.ends_with('(');
            return row.word + (has_arguments ? call.substr(begin, call.size() - begin - 1) : "");
        }
    }
    return "";
}

/// The names of keys and buttons, in the order of GLFW's numbers from `first` on. Other keys are
/// named by their character.
struct names_t {
    int first;
    std::vector<std::string> names;
};
names_t const numbers[] = {
    {GLFW_KEY_ENTER,
     {"Enter", "Tab", "Backspace", "Insert", "Delete", "Right", "Left", "Down", "Up", "Page_Up",
      "Page_Down", "Home", "End"}},
    {GLFW_KEY_KP_8, {"Keypad_8", "Keypad_9", "Keypad_.", "Keypad_/", "Keypad_*"}},
    {GLFW_KEY_KP_0, {"Keypad_0"}},
    {GLFW_KEY_KP_3, {"Keypad_3"}},
    {GLFW_KEY_KP_5, {"Keypad_5"}},
    {GLFW_KEY_SPACE, {"Space"}},
    {GLFW_KEY_F5, {"F5"}},
    {GLFW_KEY_UNKNOWN, {"unknown"}},
    {GLFW_MOUSE_BUTTON_LEFT, {"left", "right", "middle", "fourth", "fifth", "sixth"}}};

int number_of(std::string const& name) {
    for (auto const& [first, names] : numbers) {
        auto const place = std::ranges::find(names, name);
        if (place != names.end()) {
            return first + static_cast<int>(place - names.begin());
        }
    }
    return std::toupper(name.at(0));
}

/// Returns the words after the first one.
std::vector<std::string> arguments_of(std::string const& step) {
    std::istringstream words(step.substr(std::min(step.size(), step.find(' '))));
    return {std::istream_iterator<std::string>(words), {}};
}

/// The report on an OpenGL error, which tests/gl/ checks.
std::regex const gl_report("|(before-|internalformat:|m_border:|format:|type:).*");

/// A viewer's window and the text of its steps: the different calls in words, those to OpenGL
/// first, and the view if it has changed. The lines that the viewer printed follow after ">".
class session_t {
  public:
    explicit session_t(std::vector<std::string> words) {
        zanolib::g_option = {};
        setenv("HOME", m_folder.path().c_str(), 1);
        std::filesystem::current_path(m_folder.path());
        std::string const picture = test_bmp(1200, 900);
        for (char const* name : {"a.bmp", "b.bmp", "c.bmp"}) {
            write_file(name, picture);
        }
        write_file("big.bmp", test_bmp(1201, 1100));
        write_file("bad.bmp", "BM");
        write_file("row.bmp", bmp(7, 1, 8, 0, "1234"));
        write_turned_jpeg("turned.jpg", 600, 400);
        std::filesystem::create_directories("folder.png/b.jpg");
        write_file("folder.png/a.tga", "");
        write_file("viewer.msg", "viewer\nno picture\n");
        write_file(".viewer", "-h+\n-maxsize 700x500\n-maxmargin 1x1\n");
        words.insert(words.begin(), "/x/viewer.exe.EXE");
        with_argv(words, [this](int argc, char** argv) {
            m_window = std::make_unique<ViewWindow>(&argc, argv);
        });
        wenk::glfwyMGR4::getSingleton()->addWindow(m_window.get(), "test");
        m_recorder = std::make_unique<gl_recorder_t>();
    }
    session_t& operator=(session_t&&) = delete;
    ~session_t() {
        m_recorder.reset();
        wenk::glfwyMGR4::getSingleton()->MainLoop();
        std::filesystem::current_path(m_before);
    }

    /// Runs a step: a command and its words, options of the program, or a key.
    void run(std::string const& step) {
        std::vector<std::string> words = arguments_of(step);
        if (step.starts_with("drop ")) {
            std::vector<char const*> paths;
            for (std::string& name : words) {
                name = m_folder.file(name);
                paths.push_back(name.c_str());
            }
            m_glfw.fire_drop(paths);
        } else if (step.starts_with("resize ")) {
            m_glfw.fire_size(std::stoi(words[0]), std::stoi(words[1]));
        } else if (step.starts_with("scroll ")) {
            m_glfw.fire(&GLFWwindow::scroll, std::stod(words[0]), std::stod(words[1]));
        } else if (step.starts_with("drag ")) {
            for (int const action : {GLFW_PRESS, GLFW_RELEASE}) {
                for (std::size_t i = 2; i < words.size(); ++i) {
                    m_glfw.fire(&GLFWwindow::button, number_of(words[i]), action, 0);
                }
                m_glfw.fire_cursor(std::stod(words[0]), std::stod(words[1]));
            }
        } else if (step.starts_with("pixel_ratio ")) {
            m_glfw.window().pixel_ratio = std::stoi(words[0]);
        } else if (step.starts_with("most_textures ")) {
            m_recorder->most_textures = std::stoi(words[0]);
        } else if (step.starts_with("remove ")) {
            std::ranges::for_each(words, [](auto& name) { std::filesystem::remove(name); });
        } else if (step.starts_with("write ")) {
            write_file(words[0], words[1]);
        } else if (step.starts_with("show ")) {  // the lines that start with the second word
            for (std::string const& line : transcript::lines_of(read_file(words[0]))) {
                std::cout << (line.starts_with(words[1]) ? line + "\n" : "");
            }
        } else if (step.starts_with("-") && step != "-") {
            words.insert(words.begin(), {"viewer", step.substr(0, step.find(' '))});
            with_argv(words,
                      [](int argc, char** argv) { zanolib::option_enter_argument(&argc, &argv); });
        } else {
            press(step);
        }
    }
    /// Returns the text of the last step, and forgets it.
    std::string take(std::string const& step) {
        std::vector<std::string> parts;
        std::vector<std::string> made = std::exchange(m_recorder->lines, {});
        std::ranges::copy(std::exchange(m_glfw.calls, {}), std::back_inserter(made));
        for (std::string const& call : made) {
            std::string const words = replace_all(words_for(call), m_folder.path() + "/", "");
            if (!words.empty() && std::ranges::find(parts, words) == parts.end()) {
                parts.push_back(words);
            }
        }
        std::string const view = view_text(m_window->getMatrix());
        if (std::exchange(m_view, view) != view) {
            parts.push_back(view);
        }
        std::string text, line = step + ":";
        for (std::string const& part : parts) {
            if (line.size() + part.size() > 107) {
                text += std::exchange(line, "   ") + "\n";
            }
            line += " " + part + (&part == &parts.back() ? "" : ";");
        }
        text += line + "\n";
        for (std::string const& printed : transcript::lines_of(m_console.out() + m_console.err())) {
            text += std::regex_match(printed, gl_report) ? "" : "  > " + printed + "\n";
        }
        return replace_all(text, m_folder.path() + "/", "");
    }

  private:
    template <typename use_t>
    static void with_argv(std::vector<std::string>& words, use_t const& use) {
        std::vector<char*> argv;
        for (std::string& word : words) {
            argv.push_back(word.data());
        }
        use(static_cast<int>(argv.size()), argv.data());
    }
    /// Presses and releases a key, with one of the Shift keys if its name starts with "Shift+".
    void press(std::string const& key) {
        bool const has_shift = key.starts_with("Shift+");
        int const number = number_of(has_shift ? key.substr(6) : key);
        int const mods = has_shift ? GLFW_MOD_SHIFT : 0;
        m_glfw.window().key_down = has_shift ? m_shift : 0;
        m_shift = has_shift ? GLFW_KEY_RIGHT_SHIFT : m_shift;  // the left one first
        m_glfw.fire_key(number, GLFW_PRESS, mods);
        m_glfw.fire_key(number, GLFW_RELEASE, mods);
    }

    std::filesystem::path const m_before = std::filesystem::current_path();
    temp_dir_t m_folder;
    capture_t m_console;
    fake_glfw_t m_glfw;
    gl_flag_t m_modern{is_GL_VERSION_3_0_supported, 1};
    std::unique_ptr<ViewWindow> m_window;
    std::unique_ptr<gl_recorder_t> m_recorder;
    std::string m_view;
    int m_shift = GLFW_KEY_LEFT_SHIFT;
};

/// A line of the file that starts with "#" or "start" starts a session, "start" with arguments of
/// the program. Each other line starts a step: its words, ":" and its text.
TEST(ViewWindow, HandlesEvents) {
    std::string text;
    std::unique_ptr<session_t> session;
    for (std::string const& line : transcript::lines_of(read_file(SESSIONS))) {
        std::string const step = line.substr(0, line.find(':'));
        if (step.starts_with(' ')) {
            continue;
        }
        if (step.starts_with('#') || step.starts_with("start")) {
            session.reset();
            session = std::make_unique<session_t>(
                arguments_of(step.starts_with('#') ? "# none.bmp" : step));
        } else {
            session->run(step);
        }
        std::string const result = session->take(step);
        text += step.starts_with('#') ? line + "\n" : result;
    }
    EXPECT_TRUE(matches_file(text, SESSIONS));
}

}  // namespace
