#pragma once

#include <cstdint>
#include <functional>
#include <list>
#include <string_view>

namespace toolkit::web {

/// An element of the page. One that was made goes with this object. Names are HTML's own; a value
/// is text as it stands, never markup, and bytes that are no UTF-8 show as the replacement
/// character.
class Element {
 public:
  /// The page's own element with that id, which must be there, and stays.
  static Element Of(const char* id);
  /// A new one, the last in its parent.
  Element(const Element& parent, const char* tag);
  Element(Element&& other) noexcept;
  Element& operator=(Element&&) = delete;
  ~Element();
  /// Leaves it on the page when this object goes.
  void Keep() { made_ = false; }

  void Text(std::string_view text);
  void Attribute(const char* name, std::string_view value);
  void Attribute(const char* name, std::int64_t value);
  /// Without the attribute when the value is empty.
  void AttributeOrNone(const char* name, std::string_view value);
  void Style(const char* name, std::string_view value);
  void Pixels(const char* style, std::int64_t value);
  /// Puts it at a frame, in pixels.
  void Place(std::int64_t left, std::int64_t top, std::int64_t width, std::int64_t height);
  /// A property of the element's object that is a number, or true or false.
  void Set(const char* property, double value);
  double Get(const char* property) const;
  void Show(bool visible) { Set("hidden", visible ? 0 : 1); }
  /// Gives it the focus; of a label element, the control that it labels.
  void Focus();
  /// Moves it before another in the same parent; nullptr for the last place.
  void PutBefore(const Element* other);
  /// Calls the listener for each event of that name, by the guarded road.
  void On(const char* event, std::function<void()> listener);
  /// Calls the listener, likewise, whenever the answer to a media query changes.
  void OnMedia(const char* query, std::function<void()> listener);

 private:
  explicit Element(int number) : number_(number), made_(false) {}

  int number_;  ///< 0 when it was moved away
  bool made_ = true;
  std::list<std::function<void()>> listeners_;
};

}  // namespace toolkit::web
