#pragma once

#include <xcb/xcb.h>

#include <QHash>
#include <QList>
#include <QRect>
#include <QString>

// Keysyms; those of letters and digits are their ASCII codes.
namespace key {
constexpr xcb_keysym_t kTab = 0xff09;
constexpr xcb_keysym_t kReturn = 0xff0d;
constexpr xcb_keysym_t kEscape = 0xff1b;
constexpr xcb_keysym_t kLeft = 0xff51;
constexpr xcb_keysym_t kPageUp = 0xff55;
constexpr xcb_keysym_t kPageDown = 0xff56;
constexpr xcb_keysym_t kShift = 0xffe1;
constexpr xcb_keysym_t kControl = 0xffe3;
constexpr xcb_keysym_t kSuper = 0xffeb;
}  // namespace key

// What the X server says of the windows on it, and keys pressed as by a keyboard.
class XServer final {
 public:
  explicit XServer(const QByteArray& display);
  ~XServer();
  Q_DISABLE_COPY_MOVE(XServer)

  // A change of a top-level window that is on the screen, its decoration included.
  struct Change {
    xcb_window_t window;
    QRect frame;
  };

  // Since the last call: every window's place when it appeared, and its changes from then on.
  QList<Change> takeChanges();
  // The places of the only window that appeared or changed.
  QList<QRect> takeFrames();

  // Of the window that has the keyboard, its decoration included; null when none has.
  QRect focusedFrame();
  QRect screen() const;

  // Presses and releases the key of that keysym or ASCII character while the others are held.
  void press(xcb_keysym_t key, QList<xcb_keysym_t> held = {});

 private:
  QRect geometry(xcb_window_t window);
  xcb_window_t topLevel(xcb_window_t window);
  struct Key {
    uint8_t code;
    bool isShifted;
  };
  Key find(xcb_keysym_t keysym);
  void send(uint8_t type, uint8_t code);

  xcb_connection_t* m_connection;
  xcb_screen_t* m_screen;
  QHash<xcb_window_t, QRect> m_frames;  // of all windows, shown or not
  QList<xcb_window_t> m_shown;
};
