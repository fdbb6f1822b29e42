// Takes pictures of the editor's windows on the sample instrument, as bitmap files.

#include <CLI/CLI.hpp>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <vector>

#include "Win32Driver.h"
#include "Win32Hands.h"
#include "memory/MemoryServices.h"
#include "memory/MemoryTimer.h"

namespace {

using namespace mavCycEd;

std::string contentOf(const std::string& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

void savePicture(HWND window, const std::string& file) {
  RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
  RECT size{};
  GetClientRect(window, &size);
  const HDC screen = GetDC(window);
  const HDC memory = CreateCompatibleDC(screen);
  BITMAPINFOHEADER header{};
  header.biSize = sizeof header;
  header.biWidth = size.right;
  header.biHeight = size.bottom;
  header.biPlanes = 1;
  header.biBitCount = 32;
  void* pixels = nullptr;
  const HBITMAP picture =
      CreateDIBSection(screen, reinterpret_cast<BITMAPINFO*>(&header), DIB_RGB_COLORS, &pixels, nullptr, 0);
  SelectObject(memory, picture);
  BitBlt(memory, 0, 0, size.right, size.bottom, screen, 0, 0, SRCCOPY);
  GdiFlush();
  const auto bytes = static_cast<DWORD>(size.right * size.bottom * 4);
  BITMAPFILEHEADER begin{};
  begin.bfType = 0x4D42;
  begin.bfOffBits = sizeof begin + sizeof header;
  begin.bfSize = begin.bfOffBits + bytes;
  std::ofstream stream(file, std::ios::binary);
  stream.write(reinterpret_cast<const char*>(&begin), sizeof begin);
  stream.write(reinterpret_cast<const char*>(&header), sizeof header);
  stream.write(static_cast<const char*>(pixels), static_cast<std::streamsize>(bytes));
  DeleteDC(memory);
  DeleteObject(picture);
  ReleaseDC(window, screen);
}

}  // namespace

int main(int argc, char** argv) {
  CLI::App app("Takes pictures of the editor's windows on the sample instrument.");
  app.allow_windows_style_options(false);
  std::string samples;
  std::string to;
  int width = 900;
  int height = 600;
  app.add_option("--width", width, "The width of the host's window");
  app.add_option("--height", height, "Its height");
  app.add_option("SAMPLES", samples, "The folder of the sample instrument")->required();
  app.add_option("TO", to, "What the names of the pictures begin with")->required();
  CLI11_PARSE(app, argc, argv);

  win32::EditorServices services;
  services.messageBox = std::make_shared<memory::MemoryMessageBox>();
  services.gridTimer = std::make_shared<memory::MemoryTimer>();
  play::Win32Driver driver(services, {}, [] {});
  const HWND host = driver.hostWindow();
  SetWindowPos(host, nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER);
  driver.settle();
  savePicture(host, to + "empty.bmp");
  driver.SetConfigXML(contentOf(samples + "/configuration.xml"));
  driver.SetXMLStrings(contentOf(samples + "/catalogue.xml"), contentOf(samples + "/cycle-standard.xml"));
  driver.selectItem("lstAtomSequence", 2);
  driver.settle();
  savePicture(host, to + "loaded.bmp");
  for (const int y : {20, 40}) {
    driver.pressInGrid("GrdAtom", 160, y);
    savePicture(host, to + "editing-" + std::to_string(y) + ".bmp");
  }
  int dialogs = 0;
  driver.setWhileDialogOpen([&] {
    const HWND dialog = GetAncestor(GetFocus(), GA_ROOT);
    driver.settle();
    savePicture(dialog, to + "dialog-" + std::to_string(++dialogs) + ".bmp");
    if (dialogs > 1) return;
    driver.clickButton("optObjValue");
    savePicture(dialog, to + "dialog-objects.bmp");
  });
  driver.clickButton("cmdIns");
  driver.doubleClickItem("lstVariables", 0);
  driver.SetXMLStrings("", "");
  savePicture(host, to + "disabled.bmp");
  return 0;
}
