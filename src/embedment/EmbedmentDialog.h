#pragma once

// Opens the dialog of the embedment study over the project, with the data set's unit system and the report
// dialog's format, and returns when it was closed.
void RunEmbedmentDialog(int units, int format);
