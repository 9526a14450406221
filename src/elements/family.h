// A family: one control, or an array of controls addressed by index, under one name. The names are those of
// the record format; they are the identity of each field. Whoever has a window as const reads its elements by
// their names and changes none.
#pragma once

#include <QString>
#include <memory>
#include <vector>

#include "elements/element.h"
#include "elements/require.h"

namespace veneerer {

class Family {
public:
  Family(const Family&) = delete;
  Family& operator=(const Family&) = delete;
  virtual ~Family() = default;

  const QString& name() const { return name_; }
  Window& window() const { return window_; }
  bool isArray() const { return isArray_; }

  /// The member at that index, null when there is none. A single control answers to -1 and to 0.
  Element* find(int index) const;
  /// The members in index order.
  const std::vector<Element*>& members() const { return members_; }
  /// One above the highest index; 1 for a single control.
  int bound() const { return static_cast<int>(byIndex_.size()); }

protected:
  Family(Window& window, QString name, bool isArray);
  void add(std::unique_ptr<Element> element, int index);

private:
  QString name_;
  Window& window_;
  bool isArray_;
  std::vector<std::unique_ptr<Element>> byIndex_;
  std::vector<Element*> members_;
};

/// One control under its name: form1.Label5->caption().
template <class T>
class Single : public Family {
public:
  Single(Window& window, const char* name) : Family(window, QString::fromLatin1(name), false) {
    auto element = std::make_unique<T>(window, this, -1);
    element_ = element.get();
    add(std::move(element), 0);
  }
  T& operator*() { return *element_; }
  const T& operator*() const { return *element_; }
  T* operator->() { return element_; }
  const T* operator->() const { return element_; }

private:
  T* element_;
};

/// An array of controls: form1.Label16[3].caption(). Indices need not be dense.
template <class T>
class Array : public Family {
public:
  /// Members 0 to count - 1.
  Array(Window& window, const char* name, int count) : Family(window, QString::fromLatin1(name), true) {
    for (int i = 0; i < count; ++i) add(std::make_unique<T>(window, this, i), i);
  }
  Array(Window& window, const char* name, std::initializer_list<int> indices)
      : Family(window, QString::fromLatin1(name), true) {
    for (int i : indices) add(std::make_unique<T>(window, this, i), i);
  }
  // The member must exist.
  T& operator[](int index) { return member(index); }
  const T& operator[](int index) const { return member(index); }

private:
  T& member(int index) const {
    Element* element = find(index);
    require(element != nullptr, "the array has no such member");
    return static_cast<T&>(*element);
  }
};

}  // namespace veneerer
