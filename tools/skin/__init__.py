"""Draws the shipped skin, sounds and icons; tools/make_skin.py is the way in."""
