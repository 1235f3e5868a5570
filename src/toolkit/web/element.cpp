#include "toolkit/web/element.h"

#include <string>
#include <utility>

#include "toolkit/web/dom.h"

namespace toolkit::web {

Element Element::Of(const char* id) { return Element(page_Find(id)); }

Element::Element(const Element& parent, const char* tag)
    : number_(page_Make(parent.number_, tag)) {}

Element::Element(Element&& other) noexcept
    : number_(std::exchange(other.number_, 0)),
      made_(other.made_),
      listeners_(std::move(other.listeners_)) {}

Element::~Element() {
  if (number_ != 0) made_ ? page_Remove(number_) : page_Forget(number_);
}

void Element::Text(std::string_view text) { page_Text(number_, text.data(), text.size()); }

void Element::Attribute(const char* name, std::string_view value) {
  page_Attribute(number_, name, value.data(), value.size());
}

void Element::Attribute(const char* name, std::int64_t value) {
  Attribute(name, std::to_string(value));
}

void Element::AttributeOrNone(const char* name, std::string_view value) {
  if (value.empty()) {
    page_NoAttribute(number_, name);
  } else {
    Attribute(name, value);
  }
}

void Element::Style(const char* name, std::string_view value) {
  page_Style(number_, name, value.data(), value.size());
}

void Element::Pixels(const char* style, std::int64_t value) {
  Style(style, std::to_string(value) + "px");
}

void Element::Place(std::int64_t left, std::int64_t top, std::int64_t width, std::int64_t height) {
  page_Place(number_, static_cast<double>(left), static_cast<double>(top),
             static_cast<double>(width), static_cast<double>(height));
}

void Element::Set(const char* property, double value) { page_Set(number_, property, value); }

double Element::Get(const char* property) const { return page_Get(number_, property); }

void Element::Focus() { page_Focus(number_); }

void Element::PutBefore(const Element* other) {
  page_Put(number_, other == nullptr ? 0 : other->number_);
}

void Element::On(const char* event, std::function<void()> listener) {
  page_Listen(number_, event, &listeners_.emplace_back(std::move(listener)));
}

void Element::OnMedia(const char* query, std::function<void()> listener) {
  page_Watch(number_, query, &listeners_.emplace_back(std::move(listener)));
}

}  // namespace toolkit::web
