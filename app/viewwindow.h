// SPDX-License-Identifier: MIT
// The viewer: its window, its scene, its list of pictures and its commands.
#pragma once

#include <array>
#include <set>
#include <string>

#include "app/picturelist.h"
#include "geometry/constants.h"
#include "geometry/matrix.h"
#include "geometry/vector.h"
#include "options/message.h"
#include "scene/viewscene.h"
#include "window/glutyapi.h"

struct GLFWwindow;

namespace zanoview2 {

/// The lines of the viewer's message file, counted from 0.
enum e_message_local_t : unsigned {
    MESSAGE_APPLICATION_NAME = 0,  ///< the program's name in the title bar
    MESSAGE_NO_PICTURE = 1         ///< the text in the title bar if there is no picture
};

/// Returns a text of the message file, or "message not loaded." if there is none. It is valid for
/// the rest of the program.
char const* getmsg(e_message_local_t id);

/// A drag with one mouse button.
struct drag_t {
    bool active = false;  ///< true if the button is down
    float x = 0.0f;       ///< last cursor position, in framebuffer pixels from the left
    float y = 0.0f;       ///< and from the top
};

/// The viewer:
///
/// ```cpp
/// #include "app/nativewindow.h"
/// #include "window/glfwymgr4.h"
/// char program[] = "viewer", file[] = "a.jpg";
/// char* argv[] = {program, file, nullptr};
/// int argc = 2;
/// zanoview2::native::start();
/// zanoview2::ViewWindow viewer(&argc, argv);  // creates no window yet
/// wenk::glfwyMGR4* const manager = wenk::glfwyMGR4::getSingleton();
/// manager->addWindow(&viewer, "viewer");  // creates the window and calls init()
/// manager->MainLoop();  // calls the event functions until the user quits
/// zanoview2::native::stop();
/// ```
///
/// Call all members from the main thread. The constructor, `setImagePath` and `getCurrentTitleName`
/// need no window. The others need the window and its OpenGL context, which is current in `init`
/// and in the event functions. The viewer may be destroyed after GLFW was terminated.
///
/// Sizes are in framebuffer pixels. The arguments of events and of app/nativewindow.h are in screen
/// coordinates. `reshape` calculates the ratio of the two, by which `mouse` and `motion` multiply
/// positions. `residue_set_window_size` doesn't convert its size.
///
/// The scene has at most one picture. A picture that can't be loaded is skipped. One for which
/// OpenGL has no memory is skipped with a line on the error stream. If no picture of the
/// command line can be loaded, the window is empty, with `MESSAGE_NO_PICTURE` in its title.
class ViewWindow : public wenk::glutyAPI4 {
  public:
    /// Reads the message file, the user default file and the options of the command line. The names
    /// of the two files are made from `argv[0]`. If there is no message file, prints an error line.
    ///
    /// Removes the options from `*argc` and `argv` as `option_enter_argument` does. The other
    /// arguments are pictures or directories of pictures. Without them, shows the current
    /// directory. After the option "-h", prints the help and ends the process with status 0.
    ViewWindow(int* argc, char** argv);

    // Events. See glutyAPI4 in window/glutyapi.h.
    void reshape(int width, int height) override;
    void display() override;
    void keyboard(unsigned char key, int x, int y) override;
    void specialkey(int key, int x, int y) override;
    void mouse(int button, int state, int x, int y) override;
    void motion(int x, int y) override;
    void init() override;
    void mousewheel(int wheel, int direction, int x, int y) override;
    void drop(int count, char const** paths) override;

    // Paging. `init` loads the first picture of the constructor's list. To show other pictures,
    // call `clear`, `setImagePath` for each path, `initial_load` and `first`, as `drop` does.
    /// Appends a picture, or the pictures of a directory, to the list, and makes the first entry of
    /// the list the current one. Loads nothing. Returns false if there is nothing to append.
    bool setImagePath(char const* path);
    /// Removes all pictures from the list and the scene.
    void clear();
    /// Loads the first picture of the list that can be loaded into the scene, which must be empty.
    /// Returns false if there is none.
    bool initial_load();
    /// Load another picture into the scene, by the rules of app/picturelist.h. Return false if
    /// there is nowhere to go, and then the scene is unchanged. If no other picture loads, they
    /// load the old one again and return true. If it doesn't load either, they return true, too:
    /// the scene is then empty, and the place in the list is unchanged.
    bool next_image(unsigned long n);
    bool back_image(unsigned long n);
    bool first_image();
    bool last_image();
    /// Change to another picture, adapt the window to it, and draw it before they return.
    void forward(unsigned long n);
    void backward(unsigned long n);
    /// Change to another picture, adapt the window to it, and request a redisplay.
    void first();
    void last();
    /// Iconifies the window, restores it and creates the picture's GL resources again.
    void reload();
    /// Sets the window's title to the picture's path, its number and the program's name.
    void update_title();
    /// Returns "path (number/count)", or "" if there is no picture. Numbers count from 1.
    std::string getCurrentTitleName() const;

    // Sizes, all in framebuffer pixels.
    /// Adapts the view to a new picture, and the window if `resize` is true. The option resizetype
    /// decides how. Calls `residue_resume` if the option reproduce is set. If this isn't called or
    /// returns false, calls `residue_new`. Returns the last result, which no caller uses. If the
    /// option resetview isn't set, does nothing and returns true.
    bool residue(bool resize);
    /// Uses the stored view (app/zvwfile.h). Returns false if there is none.
    bool residue_resume(bool resize);
    /// Uses the picture's size. Returns true if resizetype is 1, or if it is 2 and the picture
    /// needs another window size.
    bool residue_new(bool resize);
    /// Returns the result of `limited_window_size` (app/sizing.h) for the window and the options.
    libgr::direction2l_t residue_calc_window_size(libgr::direction2l_t const& target,
                                                  libgr::direction2l_t const& current) const;
    /// If `target` differs from `current`, returns true and, if `resize` is true, requests this
    /// window size. Otherwise calls `set_shape` and returns false.
    ///
    /// The pixels are used as screen coordinates. On a display with two pixels for each screen
    /// coordinate, the window becomes twice as large. Users' settings depend on this.
    bool residue_set_window_size(libgr::direction2l_t const& target,
                                 libgr::direction2l_t const& current, bool resize);
    /// Adapts the scene's projection to the window's size.
    void set_shape();
    /// Shows the picture upright in the centre of the window, and fits it into the window.
    void go_center();
    /// Returns the picture's size after the rotation by its Exif orientation, or 0, 0 if there is
    /// no picture.
    libgr::direction2l_t getCurrentImageSize() const;
    /// Multiply the picture's view matrix by a scale, and by another matrix. They don't replace it.
    void setScale(float scale);
    void setMatrix(libgr::matrix3w_t const& matrix);
    libgr::direction2l_t get_window_size() const;
    libgr::matrix3w_t const& getMatrix() const;

    // Commands. The first three do nothing if there is no picture.
    /// Saves the view in the view state file (app/zvwfile.h). On failure, prints the file's path
    /// and the reason on the error stream.
    void menu_edit_save_zvwfile();
    /// Deletes the view state file. Prints nothing on failure.
    void menu_edit_delete_zvwfile();
    /// Draws the scene and saves it as a JPEG file with the size of the framebuffer: "d/a.zvw.jpg"
    /// for the picture "d/a.png". On failure, prints the same as `menu_edit_save_zvwfile`.
    void menu_file_savejpeg();
    /// Saves the options in the user default file. Prints nothing on failure.
    void menu_edit_writedefault();
    /// Moves the picture, or the camera by the option cursor_movement, by 10 pixels. `key` is the
    /// number of an arrow key in GLFW.
    void cursor_move(int key);
    /// Makes the window as large as the monitor's work area, or gives it its old size and position.
    void toggle_work_area();

  private:
    class scene_loader_t;
    struct key_row_t;
    static std::array<key_row_t, 26> const key_rows;

    void handle_key(int key);
    unsigned long paging_step() const;
    void set_zoom(int digit);
    void go_to_end(bool (ViewWindow::*end)());
    bool add_to_scene(std::string const& path);
    void skip(std::string const& path);
    bool finish_walk(walk_t walk);
    template <typename Step>
    bool change_picture(Step const& step);
    void report_picture(std::string const& path) const;
    void load_first_picture();
    template <typename Step>
    void page(Step const& step);
    static bool covers_work_area();
    static void cover_work_area(GLFWwindow* window);
    void request_redisplay() const;
    GLFWwindow* window() const;

    std::array<char, 1024> prog{};
    std::array<char, 1024> dir{};
    drag_t move_drag;
    drag_t zoom_drag;
    drag_t rotate_drag;
    zanolib::ViewScene scene;
    picture_list_t imagelist;
    picture_list_t::iterator current = imagelist.end();
    unsigned long current_index = 0;
    std::set<std::string> skipped;    ///< paths that this walk has reported
    std::set<std::string> too_large;  ///< paths that the current change of picture skips
    unsigned long image_count = 0;
    libgr::direction2l_t startsize = libgr::datum2l;  ///< the window's until the first `reshape`
    libgr::direction2l_t oldwinsize = libgr::datum2l;
    libgr::direction2l_t pixelratio = libgr::direction2l(1, 1);
};

}  // namespace zanoview2
