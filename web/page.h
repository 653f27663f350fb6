// What the browser does for the face. The functions stand in page.js, the only script of the page. An
// element is told by its id: the name of a form, or form, dot, control.
#pragma once

extern "C" {

// Makes a form seen or unseen.
void page_show(const char* form, bool shown);
// Lays a form out unseen, with its pictures.
void page_ready(const char* form);
// The title of a form's window.
void page_title(const char* form, const char* title);
// Puts back what a person scrolled or selected in a form, as a fresh form has it.
void page_refresh(const char* form);

// The text of a label, button, option or frame; the value of a box.
void page_text(const char* id, const char* text);
// One of "plain", "red", "green", "purple", "black".
void page_colour(const char* id, const char* colour);
void page_tip(const char* id, const char* tip);
void page_hidden(const char* id, bool hidden);
void page_disabled(const char* id, bool disabled);
// A text box that cannot be changed, and one that the keyboard passes over.
void page_locked(const char* id, bool locked);
void page_skipped(const char* id, bool skipped);
void page_checked(const char* id, bool checked);
// What is said of an element instead of its words.
void page_spoken(const char* id, const char* words);
// The letter that reaches an element together with Alt.
void page_key(const char* id, int key);
// Lets a picture step back behind what is done.
void page_dimmed(const char* id, bool dimmed);
// Lets an element stand out as one that calls for a click.
void page_inviting(const char* id, bool inviting);
// Takes all rows of a list away; adds one below the others; selects one, -1 for none.
void page_clear(const char* id);
void page_row(const char* id, const char* text);
void page_selected(const char* id, int row);
// Puts the head of the monster of a picture before a row.
void page_head(const char* id, int row, const char* picture);
// Shows a picture by its file name. Those of the game have two sizes, of which width and height are the
// larger; 0 for any other picture.
void page_picture(const char* id, const char* name, int width, int height);

// Puts the keyboard on an element of a form, on the form itself when the id is empty.
void page_focus(const char* form, const char* id);
// Speaks words that tell of something that happens, and lets their element come in with a movement;
// lets another flinch where it stands.
void page_news(const char* id, const char* words);
void page_flinch(const char* id);
// The one message box of the game.
void page_error(const char* text);
// Shows that the program has ended.
void page_ended(bool ended);

// Whether a file beside the page is a picture: 0 it is, 53 there is no such file, 481 it is none or cut.
int page_has_picture(const char* name);
// The file beside the page that was fetched before the start: its length, -1 when there is none; and its
// bytes, to be fetched once.
int page_file_length(const char* name);
void page_file_bytes(const char* name, char* bytes);
// The folder beside the page where a file of that name is looked for, cut at size bytes with the end's zero.
void page_folder(const char* file, char* address, int size);
// Seconds since midnight of the place where the browser stands.
double page_seconds();
// Starts a file beside the page on a player, whose sound before gives way; what cannot play is silence.
void page_play(const char* player, const char* file);
void page_stop(const char* player);
}
