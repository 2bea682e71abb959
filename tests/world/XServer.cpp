#include "tests/world/XServer.h"

#include <gtest/gtest.h>
#include <xcb/xtest.h>

#include <QByteArray>
#include <cstdlib>

namespace {

// Window managers have windows of a few points that nobody sees.
constexpr int kSmallest = 50;

template <typename Reply>
std::unique_ptr<Reply, decltype(&std::free)> owned(Reply* reply) {
  return {reply, &std::free};
}

// Of everything that tells where a window is.
template <typename Place>
QRect frameOf(const Place* place) {
  const int border = 2 * place->border_width;
  return {place->x, place->y, place->width + border, place->height + border};
}

}  // namespace

XServer::XServer(const QByteArray& display)
    : m_connection(xcb_connect(display.constData(), nullptr)),
      m_screen(xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data) {
  const uint32_t events = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
  xcb_change_window_attributes(m_connection, m_screen->root, XCB_CW_EVENT_MASK, &events);
  xcb_flush(m_connection);
}

XServer::~XServer() {
  xcb_disconnect(m_connection);
}

QRect XServer::screen() const {
  return {0, 0, m_screen->width_in_pixels, m_screen->height_in_pixels};
}

QRect XServer::geometry(xcb_window_t window) {
  const auto reply =
      owned(xcb_get_geometry_reply(m_connection, xcb_get_geometry(m_connection, window), nullptr));
  if (!reply) return {};
  return frameOf(reply.get());
}

xcb_window_t XServer::topLevel(xcb_window_t window) {
  for (;;) {
    const auto tree =
        owned(xcb_query_tree_reply(m_connection, xcb_query_tree(m_connection, window), nullptr));
    if (!tree || tree->parent == XCB_NONE) return XCB_NONE;
    if (tree->parent == m_screen->root) return window;
    window = tree->parent;
  }
}

QRect XServer::focusedFrame() {
  const auto focus =
      owned(xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
  if (!focus || focus->focus <= XCB_INPUT_FOCUS_POINTER_ROOT) return {};
  const QRect frame = geometry(topLevel(focus->focus));
  return frame.width() < kSmallest ? QRect() : frame;
}

QList<XServer::Change> XServer::takeChanges() {
  // What happened before this call was sent before its answer.
  owned(xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
  QList<Change> changes;
  while (const auto event = owned(xcb_poll_for_event(m_connection))) {
    switch (event->response_type & ~0x80) {
      case XCB_CREATE_NOTIFY: {
        const auto* create = reinterpret_cast<xcb_create_notify_event_t*>(event.get());
        m_frames.insert(create->window, frameOf(create));
        break;
      }
      case XCB_MAP_NOTIFY: {
        const xcb_window_t window = reinterpret_cast<xcb_map_notify_event_t*>(event.get())->window;
        const QRect frame = m_frames.value(window);
        if (frame.width() < kSmallest) break;
        m_shown.append(window);
        changes.append({window, frame});
        break;
      }
      case XCB_UNMAP_NOTIFY:
        m_shown.removeAll(reinterpret_cast<xcb_unmap_notify_event_t*>(event.get())->window);
        break;
      case XCB_CONFIGURE_NOTIFY: {
        const auto* configure = reinterpret_cast<xcb_configure_notify_event_t*>(event.get());
        const QRect frame = frameOf(configure);
        m_frames.insert(configure->window, frame);
        if (m_shown.contains(configure->window)) changes.append({configure->window, frame});
        break;
      }
      default:
        break;
    }
  }
  return changes;
}

QList<QRect> XServer::takeFrames() {
  const QList<Change> changes = takeChanges();
  QList<QRect> frames;
  for (const Change& change : changes) {
    EXPECT_EQ(change.window, changes.first().window) << "several windows";
    frames.append(change.frame);
  }
  return frames;
}

XServer::Key XServer::find(xcb_keysym_t keysym) {
  const xcb_setup_t* setup = xcb_get_setup(m_connection);
  const auto count = static_cast<uint8_t>(setup->max_keycode - setup->min_keycode + 1);
  const auto mapping = owned(xcb_get_keyboard_mapping_reply(
      m_connection, xcb_get_keyboard_mapping(m_connection, setup->min_keycode, count), nullptr));
  const xcb_keysym_t* keysyms = xcb_get_keyboard_mapping_keysyms(mapping.get());
  for (int code = 0; code < count; ++code) {
    const xcb_keysym_t* ofKey = keysyms + code * mapping->keysyms_per_keycode;
    if (ofKey[0] == keysym || ofKey[1] == keysym)
      return {static_cast<uint8_t>(setup->min_keycode + code), ofKey[0] != keysym};
  }
  ADD_FAILURE() << "no key " << keysym;
  return {};
}

void XServer::send(uint8_t type, uint8_t code) {
  xcb_test_fake_input(m_connection, type, code, XCB_CURRENT_TIME, m_screen->root, 0, 0, 0);
}

void XServer::press(xcb_keysym_t key, QList<xcb_keysym_t> held) {
  const Key pressed = find(key);
  if (pressed.isShifted) held.append(key::kShift);
  for (const xcb_keysym_t modifier : held) send(XCB_KEY_PRESS, find(modifier).code);
  send(XCB_KEY_PRESS, pressed.code);
  send(XCB_KEY_RELEASE, pressed.code);
  for (const xcb_keysym_t modifier : held) send(XCB_KEY_RELEASE, find(modifier).code);
  xcb_flush(m_connection);
}
