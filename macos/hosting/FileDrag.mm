// Dragging a file out of a view.
#include "macos/hosting/FileDrag.hpp"

#include "macos/appkit/Strings.hpp"
#include "macos/canvas/SystemImages.hpp"

/// Offers a file to be copied, never to be moved or deleted.
@interface OrvaneFileDragSource : NSObject <NSDraggingSource>
@end

@implementation OrvaneFileDragSource

- (NSDragOperation)draggingSession:(NSDraggingSession*)session
    sourceOperationMaskForDraggingContext:(NSDraggingContext)context {
  return NSDragOperationCopy;
}

@end

namespace orvane::appkit {

void beginFileDrag(const ui::DragRequest& request, NSView* view) {
  // A session is not documented to retain its source, so one source serves all sessions.
  static OrvaneFileDragSource* const source = [[OrvaneFileDragSource alloc] init];
  NSString* const text = foundationString(request.fileUrl);
  NSURL* const file = text == nil ? nil : [NSURL URLWithString:text];
  NSEvent* const event = NSApplication.sharedApplication.currentEvent;
  if (file == nil || event == nil) {
    return;
  }
  NSDraggingItem* const item = [[NSDraggingItem alloc] initWithPasteboardWriter:file];
  const ui::Rect& frame = request.frame;
  [item setDraggingFrame:NSMakeRect(frame.x, frame.y, frame.width, frame.height)
                contents:resourceImage(request.imageName)];
  [view beginDraggingSessionWithItems:@[ item ] event:event source:source];
}

}  // namespace orvane::appkit
