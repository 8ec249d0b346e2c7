// SPDX-License-Identifier: MIT
// The yardstick for the viewer: a program without any structure that makes the OpenGL calls of the
// viewer in the same order on the same decoded rows. It shows JPEG files only.
//
// usage: zv_bare FILE... ("space" shows the next file, "q" ends the program)
#define GL_GLEXT_PROTOTYPES
#define GLFW_INCLUDE_NONE
#include <GL/gl.h>
#include <GL/glext.h>
#include <GLFW/glfw3.h>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <vector>

// jpeglib.h needs FILE.
#include <jpeglib.h>

namespace {

constexpr int tile = 256;

char** g_files;  // ends with a null pointer
int g_width;     // of the picture, in pixels
int g_height;
std::vector<GLuint> g_textures;
GLuint g_list;

/// Returns the rows of a JPEG file, the bottom row first, each padded to a multiple of 4 bytes.
std::unique_ptr<unsigned char[]> decode(char const* path) {
    int const fd = open(path, O_RDONLY);
    struct stat status {};
    if (fd < 0 || fstat(fd, &status) != 0) {
        std::perror(path);
        std::exit(1);
    }
    auto const size = static_cast<std::size_t>(status.st_size);
    void* const file = mmap(nullptr, size, PROT_READ, MAP_PRIVATE, fd, 0);
    close(fd);
    jpeg_decompress_struct info{};
    jpeg_error_mgr errors{};
    info.err = jpeg_std_error(&errors);
    jpeg_create_decompress(&info);
    jpeg_mem_src(&info, static_cast<unsigned char*>(file), size);
    jpeg_read_header(&info, TRUE);
    info.out_color_space = JCS_RGB;
    jpeg_start_decompress(&info);
    g_width = static_cast<int>(info.output_width);
    g_height = static_cast<int>(info.output_height);
    std::size_t const stride = (info.output_width * std::size_t{3} + 3) / 4 * 4;
    // Without a value, so that the rows are written once, as by the viewer.
    std::unique_ptr<unsigned char[]> rows(new unsigned char[stride * info.output_height]);
    while (info.output_scanline < info.output_height) {
        JSAMPROW row = rows.get() + stride * (info.output_height - 1 - info.output_scanline);
        jpeg_read_scanlines(&info, &row, 1);
    }
    jpeg_finish_decompress(&info);
    jpeg_destroy_decompress(&info);
    munmap(file, size);
    return rows;
}

void upload(unsigned char const* rows) {
    for (int y = 0; y < g_height; y += tile) {
        for (int x = 0; x < g_width; x += tile) {
            GLuint name = 0;
            glGenTextures(1, &name);
            g_textures.push_back(name);
            glBindTexture(GL_TEXTURE_2D, name);
            glPixelStorei(GL_UNPACK_SWAP_BYTES, 0);
            glPixelStorei(GL_UNPACK_ALIGNMENT, 4);
            glPixelStorei(GL_UNPACK_ROW_LENGTH, g_width);
            glPixelStorei(GL_UNPACK_SKIP_PIXELS, x);
            glPixelStorei(GL_UNPACK_SKIP_ROWS, y);
            glTexImage2D(GL_TEXTURE_2D, 0, GL_RGB8, tile, tile, 0, GL_RGB, GL_UNSIGNED_BYTE,
                         nullptr);
            glTexSubImage2D(GL_TEXTURE_2D, 0, 0, 0, std::min(tile, g_width - x),
                            std::min(tile, g_height - y), GL_RGB, GL_UNSIGNED_BYTE, rows);
            glGenerateMipmap(GL_TEXTURE_2D);
        }
    }
}

void compile_list() {
    g_list = glGenLists(1);
    glNewList(g_list, GL_COMPILE);
    glEnable(GL_TEXTURE_2D);
    glTexEnvi(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, GL_REPLACE);
    auto name = g_textures.begin();
    for (int y = 0; y < g_height; y += tile) {
        for (int x = 0; x < g_width; x += tile) {
            int const width = std::min(tile, g_width - x);
            int const height = std::min(tile, g_height - y);
            auto const left = static_cast<float>(x) - static_cast<float>(g_width) / 2;
            auto const bottom = static_cast<float>(y) - static_cast<float>(g_height) / 2;
            float const right = left + static_cast<float>(width);
            float const top = bottom + static_cast<float>(height);
            float const s = static_cast<float>(width) / tile;
            float const t = static_cast<float>(height) / tile;
            glBindTexture(GL_TEXTURE_2D, *name++);
            glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR_MIPMAP_LINEAR);
            glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
            glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
            glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
            glTexParameterf(GL_TEXTURE_2D, GL_TEXTURE_MAX_ANISOTROPY_EXT, 1);
            glBegin(GL_TRIANGLE_FAN);
            glTexCoord2f(0, 0);
            glVertex2f(left, bottom);
            glTexCoord2f(s, 0);
            glVertex2f(right, bottom);
            glTexCoord2f(s, t);
            glVertex2f(right, top);
            glTexCoord2f(0, t);
            glVertex2f(left, top);
            glEnd();
        }
    }
    glDisable(GL_TEXTURE_2D);
    glEndList();
}

void show_next_file() {
    if (*g_files == nullptr) {
        return;
    }
    glDeleteLists(g_list, 1);
    glBindTexture(GL_TEXTURE_2D, 0);
    for (GLuint const name : g_textures) {
        glDeleteTextures(1, &name);
    }
    g_textures.clear();
    std::unique_ptr<unsigned char[]> const rows = decode(*g_files++);
    upload(rows.get());
    compile_list();
}

void draw(GLFWwindow* window) {
    int width = 0;
    int height = 0;
    glfwGetFramebufferSize(window, &width, &height);
    double const x = width / 2.0;
    double const y = height / 2.0;
    glViewport(0, 0, width, height);
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    glOrtho(-x, x, -y, y, 0, 10000);
    glClear(GL_DEPTH_BUFFER_BIT | GL_COLOR_BUFFER_BIT);
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
    static constexpr float place[] = {-50, 50, 50, 1};
    static constexpr float gray[] = {0.18F, 0.18F, 0.18F, 1};
    glEnable(GL_LIGHT0);
    glLightfv(GL_LIGHT0, GL_POSITION, place);
    glLightfv(GL_LIGHT0, GL_AMBIENT, gray);
    glLightfv(GL_LIGHT0, GL_DIFFUSE, gray);
    glLightfv(GL_LIGHT0, GL_SPECULAR, gray);
    glTranslatef(0, 0, -1000);
    auto const scale = static_cast<float>(0.875 / std::max(g_width / (2 * x), g_height / (2 * y)));
    glScalef(scale, scale, scale);
    // The frame: eight corners around the picture.
    float const w = static_cast<float>(g_width) / 2;
    float const h = static_cast<float>(g_height) / 2;
    float const border = 5 / scale;
    float const corners[] = {-w, -h, -w - border, -h - border, w,  -h, w + border,  -h - border,
                             w,  h,  w + border,  h + border,  -w, h,  -w - border, h + border};
    static constexpr GLubyte strip[] = {0, 1, 2, 3, 4, 5, 6, 7, 0, 1};
    static constexpr GLubyte white[] = {255, 255, 255, 255};
    glPushMatrix();
    glColor4ubv(white);
    glEnableClientState(GL_VERTEX_ARRAY);
    glVertexPointer(2, GL_FLOAT, 0, corners);
    glDrawElements(GL_QUAD_STRIP, 10, GL_UNSIGNED_BYTE, strip);
    glDisableClientState(GL_VERTEX_ARRAY);
    glPopMatrix();
    glPushMatrix();
    glCallList(g_list);
    glPopMatrix();
    glfwSwapBuffers(window);
}

void on_key(GLFWwindow* window, int key, int, int action, int) {
    if (action == GLFW_RELEASE) {
        return;
    }
    if (key == GLFW_KEY_SPACE) {
        show_next_file();
        draw(window);
    } else if (key == GLFW_KEY_Q) {
        glfwSetWindowShouldClose(window, GLFW_TRUE);
    }
}

}  // namespace

int main(int, char** argv) {
    if (glfwInit() != GLFW_TRUE) {
        return 1;
    }
    GLFWwindow* const window = glfwCreateWindow(640, 480, "bare", nullptr, nullptr);
    if (window == nullptr) {
        return 1;
    }
    glfwSetKeyCallback(window, on_key);
    glfwSetWindowRefreshCallback(window, draw);
    glfwMakeContextCurrent(window);
    glDisable(GL_DEPTH_TEST);
    glFrontFace(GL_CCW);
    glCullFace(GL_BACK);
    glEnable(GL_CULL_FACE);
    glClearColor(0.18F, 0.18F, 0.18F, 1);
    glfwSetWindowSize(window, 800, 600);
    g_files = argv + 1;
    show_next_file();
    draw(window);
    while (glfwWindowShouldClose(window) == GLFW_FALSE) {
        glfwWaitEvents();
    }
    glfwTerminate();
    return 0;
}
