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

/// Returns a text of the message file, or "message not loaded.". It is valid for the rest of the
/// program.
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
/// All members run on the main thread. After `init`, the window's OpenGL context must be current,
/// as it is in the event functions. The viewer may be destroyed after GLFW was terminated.
///
/// The scene has at most one picture. A picture that can't be loaded is skipped. One that OpenGL
/// has no memory for is skipped with a line on the error stream.
class ViewWindow : public wenk::glutyAPI4 {
  public:
    /// Reads the message file, the user default file and the options of the command line. All other
    /// arguments are pictures or directories of pictures. Without them, shows the current
    /// directory. `argv[0]` gives the names of the message file and of the user default file.
    ///
    /// After the option "-h", prints the help and ends the process with status 0.
    ViewWindow(int* argc, char** argv);

    // Events. Positions are in screen coordinates from the window's upper left corner.
    void reshape(int width, int height) override;
    void display() override;
    void keyboard(unsigned char key, int x, int y) override;
    void specialkey(int key, int x, int y) override;
    void mouse(int button, int state, int x, int y) override;
    void motion(int x, int y) override;
    void init() override;
    void mousewheel(int wheel, int direction, int x, int y) override;
    void drop(int count, char const** paths) override;

    // Paging.
    /// Appends a picture, or the pictures of a directory, to the list. Returns false if there are
    /// none.
    bool setImagePath(char const* path);
    /// Removes all pictures from the list and the scene.
    void clear();
    /// Loads the first picture into the scene that can be loaded. Returns false if there is none.
    bool initial_load();
    /// Loads another picture into the scene, by the rules of app/picturelist.h. Return false if the
    /// scene was left unchanged.
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
    /// Creates the picture's GL resources again. Iconifies and restores the window.
    void reload();
    /// Sets the window's title to the picture's path, its number and the program's name.
    void update_title();
    /// Returns "path (number/count)", or "" if there is no picture. Numbers count from 1.
    std::string getCurrentTitleName() const;

    // Sizes, all in framebuffer pixels.
    /// Adapts the window and the view to a new picture, by the options resetview, reproduce and
    /// resizetype: to the stored view if there is one (`residue_resume`), otherwise to the
    /// picture's size (`residue_new`). Changes the window's size only if `resize` is true.
    ///
    /// `residue_resume` returns false if there is no stored view. No caller uses the other results.
    bool residue(bool resize);
    bool residue_resume(bool resize);
    bool residue_new(bool resize);
    /// Returns the result of `limited_window_size` (app/sizing.h) for the window and the options.
    libgr::direction2l_t residue_calc_window_size(libgr::direction2l_t const& target,
                                                  libgr::direction2l_t const& current) const;
    /// Requests the window size `target`. Adapts the scene if the window has this size already.
    bool residue_set_window_size(libgr::direction2l_t const& target,
                                 libgr::direction2l_t const& current, bool resize);
    /// Adapts the scene's projection to the window's size.
    void set_shape();
    /// Moves the picture to the window's centre without a turn, and fits it into the window.
    void go_center();
    /// Returns the picture's size after its turn by the Exif orientation, or 0, 0.
    libgr::direction2l_t getCurrentImageSize() const;
    /// Multiply the picture's matrix by a scale or by another matrix.
    void setScale(float scale);
    void setMatrix(libgr::matrix3w_t const& matrix);
    libgr::direction2l_t get_window_size() const;
    libgr::matrix3w_t const& getMatrix() const;

    // Commands. The first three do nothing if there is no picture.
    /// Stores the view in the view state file (app/zvwfile.h). On failure, prints the file's path
    /// and the reason on the error stream.
    void menu_edit_save_zvwfile();
    /// Deletes the view state file. Prints nothing on failure.
    void menu_edit_delete_zvwfile();
    /// Draws the scene and stores it as a JPEG file beside the picture. Failures are printed as for
    /// the view.
    void menu_file_savejpeg();
    /// Stores the options in the user default file. Prints nothing on failure.
    void menu_edit_writedefault();
    /// Moves the picture by 10 pixels. `key` is an arrow key's number in GLFW.
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
