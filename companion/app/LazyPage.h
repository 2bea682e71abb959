#pragma once

#include <QWidget>
#include <functional>

// A page whose content is made when it is first shown, so that what nobody has looked at costs the start
// nothing.
class LazyPage final : public QWidget {
  Q_OBJECT

 public:
  using Make = std::function<QWidget*()>;

  explicit LazyPage(Make make);  // called at most once; the page takes what it makes

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  Make m_make;
};
