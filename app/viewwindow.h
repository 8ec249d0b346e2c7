// SPDX-License-Identifier: MIT
// The application object: one window, one scene, the list of pictures and every command.
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

/// The application's own messages: their lines in the message file, counted from 0.
enum e_message_local_t : unsigned {
    MESSAGE_APPLICATION_NAME = 0,  ///< the application's name in the title bar
    MESSAGE_NO_PICTURE = 1         ///< what stands behind it while no picture is shown
};

/// The text of a message, from the catalogue that was loaded at start; valid until a further load.
char const* getmsg(e_message_local_t id);

/// The drag of one mouse button. While it is active the button is down, and x and y are the cursor
/// position already taken into account, in framebuffer pixels from the upper left corner.
struct drag_t {
    bool active = false;
    float x = 0.0f;
    float y = 0.0f;
};

/// The viewer. It is constructed before its window exists; the window manager calls `init` once
/// the window is up and its OpenGL context current, and from then on one operation an event.
/// Everything runs on the main thread, with the context current. It owns its scene, which may be
/// destroyed after the windowing library has gone.
///
/// At most one picture is in the scene. A picture that doesn't load is skipped without a word, and
/// one that OpenGL has no memory for is skipped with a line on the error stream.
class ViewWindow : public wenk::glutyAPI4 {
  public:
    /// Reads the message file and the options (built-in values, the user's default file, the
    /// command line) and makes the list of pictures from the arguments that are left; with none,
    /// the current directory. Prints the help and ends the process with status 0 under "-h".
    ViewWindow(int* argc, char** argv);

    // What the window reports.
    void reshape(int width, int height) override;
    void display() override;
    void keyboard(unsigned char key, int x, int y) override;
    void specialkey(int key, int x, int y) override;
    void mouse(int button, int state, int x, int y) override;
    void motion(int x, int y) override;
    void init() override;
    void mousewheel(int wheel, int direction, int x, int y) override;
    void drop(int count, char const** paths) override;

    // The list of pictures.
    /// Adds a picture, or the pictures of a directory; false when there was nothing to add.
    bool setImagePath(char const* path);
    /// Empties list and scene.
    void clear();
    /// Puts the first picture that loads into the scene; false when none does.
    bool initial_load();
    /// Pages by `n` entries, in list and scene; false when no picture was taken out of the scene.
    bool next_image(unsigned long n);
    bool back_image(unsigned long n);
    bool first_image();
    bool last_image();
    /// Pages and draws the new picture at once.
    void forward(unsigned long n);
    void backward(unsigned long n);
    /// Pages and requests a redisplay.
    void first();
    void last();
    /// Makes the picture's GL resources anew; the window goes down and up again.
    void reload();
    /// Sets the window's title: path, place and the application's name.
    void update_title();
    /// "path (place/count)"; empty while there is no picture.
    std::string getCurrentTitleName() const;

    // Window and picture adapting to each other, in framebuffer pixels.
    /// Adapts window and view to a new picture, as the options say. With `resize` false the window
    /// is left alone.
    bool residue(bool resize);
    bool residue_resume(bool resize);
    bool residue_new(bool resize);
    libgr::direction2l_t residue_calc_window_size(libgr::direction2l_t const& target,
                                                  libgr::direction2l_t const& current) const;
    bool residue_set_window_size(libgr::direction2l_t const& target,
                                 libgr::direction2l_t const& current, bool resize);
    /// Sets the scene up for the window's present size.
    void set_shape();
    /// Fits the picture into the window.
    void go_center();
    /// The picture's size as it stands on the screen: turned by the file's orientation.
    libgr::direction2l_t getCurrentImageSize() const;
    /// Both multiply onto the picture's matrix.
    void setScale(float scale);
    void setMatrix(libgr::matrix3w_t const& matrix);
    libgr::direction2l_t get_window_size() const;
    libgr::matrix3w_t const& getMatrix() const;

    // Commands behind keys. All but menu_edit_writedefault need a picture. A view or a snapshot
    // that can't be saved is reported with its path and the reason on the error stream. The other
    // two commands fail without a message.
    void menu_edit_save_zvwfile();
    void menu_edit_delete_zvwfile();
    void menu_file_savejpeg();
    void menu_edit_writedefault();
    /// Moves the picture one step for an arrow key, given by its GLFW number.
    void cursor_move(int key);
    /// Blows the window up to the monitor's work area, or puts it back.
    void toggle_work_area();

  private:
    /// The scene as the stage of the list walk.
    class stage_t;

    struct key_row_t;

    void serve_key(key_row_t const* begin, key_row_t const* end, int key);
    unsigned long paging_step() const;
    void set_zoom(int digit);
    void go_to(bool (ViewWindow::*end)());
    bool add_to_scene(std::string const& path);
    void skip(std::string const& path);
    bool settle(walk_t walk);
    template <typename Step>
    bool change_picture(Step const& step);
    void announce(std::string const& path) const;
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
    std::set<std::string> too_large;  ///< paths that the running change of picture has to skip
    unsigned long image_count = 0;
    libgr::direction2l_t startsize = libgr::datum2l;  ///< the first picture was fitted into it
    libgr::direction2l_t oldwinsize = libgr::datum2l;
    libgr::direction2l_t pixelratio = libgr::direction2l(1, 1);
};

}  // namespace zanoview2
