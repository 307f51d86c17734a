#pragma once
#include <windows.h>

#include <map>

namespace tarnwick {

// Bitmaps of the module's resources, loaded once each and freed together.
class BitmapSet {
 public:
  BitmapSet() = default;
  ~BitmapSet() { Free(); }
  BitmapSet(const BitmapSet&) = delete;
  BitmapSet& operator=(const BitmapSet&) = delete;

  // Null when there is no such bitmap. One that lies on the dialog's face is drawn
  // for a face of 240 grey, and gets the colour that the face has on this system.
  HBITMAP Load(HINSTANCE instance, int id);
  HBITMAP LoadOnFace(HINSTANCE instance, int id);
  void Free();

 private:
  std::map<int, HBITMAP> bitmaps_;
};

}  // namespace tarnwick
