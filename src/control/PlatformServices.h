#pragma once

#include "platform/Clock.h"
#include "platform/CodePage.h"
#include "platform/MessageBox.h"
#include "platform/SystemMessage.h"
#include "platform/XmlDocument.h"

namespace mavCycEd {

/// The services of the platform that the editor works with. They outlive the editor control.
struct PlatformServices {
  platform::XmlDocumentFactory& xmlDocuments;
  platform::MessageBox& messageBox;
  platform::SystemMessage& systemMessage;
  platform::CodePage& codePage;
  platform::Clock& clock;
};

}  // namespace mavCycEd
