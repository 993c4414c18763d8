#pragma once

#import <Foundation/Foundation.h>

/// The class of the observer. Has no fields: the callbacks stand in the tables of ChangeKinds.h.
/// The receiving thread only.
@interface ORVFunc : NSObject
- (void)inputAudioChanged:(NSNotification *)notification;
- (void)outputAudioChanged:(NSNotification *)notification;
- (void)boostLevelChanged:(NSNotification *)notification;
- (void)midiChannelChanged:(NSNotification *)notification;
- (void)midiKeyModeChanged:(NSNotification *)notification;
@end
