#pragma once

#include <memory>

namespace desktop {

template <auto destroy>
struct DestroyWith {
  template <typename Object>
  void operator()(Object* object) const {
    destroy(object);
  }
};

/// Something that a library written in C handed out, given back when it goes out of scope:
/// CPointer<cairo_t, cairo_destroy>.
template <typename Object, auto destroy>
using CPointer = std::unique_ptr<Object, DestroyWith<destroy>>;

}  // namespace desktop
