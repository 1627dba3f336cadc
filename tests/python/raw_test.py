"""Calls functions as they are in C: text, numbers, records, callbacks, handles."""
import ctypes
import gc
import unittest

import quarlo
from quarlo import raw
from quarlo.raw import string, units


class Started(unittest.TestCase):
    def setUp(self):
        self.display = quarlo.Display(display="memory", width=64, height=32, format="24")
        self.addCleanup(self.display.close)


class Text(Started):
    def test_goes_to_utf_16_and_back(self):
        for text in ("", "A", "旋盤", "a\U0001F600b", "\ud800"):
            with self.subTest(text):
                self.assertEqual(string(units(text)), text)
        self.assertEqual(list(units("\U0001F600")), [0xD83D, 0xDE00, 0])

    def test_is_counted_by_the_library(self):
        self.assertEqual(raw.GDGetStringLength("旋\U0001F600盤", -1), 3)
        self.assertEqual(raw.GDGetStringLength(None, -1), 0)

    def test_is_stepped_through_in_memory(self):
        text = units("旋盤")
        character = ctypes.c_uint32()
        after = raw.GDGetNextChar(text, None, character)
        self.assertEqual(chr(character.value), "旋")
        self.assertEqual(after[0], ord("盤"))
        self.assertFalse(raw.GDGetNextChar(units(""), None, character))

    def test_is_written_to_a_buffer(self):
        room = (ctypes.c_uint16 * 16)()
        self.assertEqual(raw.GRCMultiByteToUnicode("盤".encode(), -1, room, len(room)), 2)
        self.assertEqual(string(room), "盤")

    def test_is_read_where_a_pointer_leads(self):
        block = raw.GMGMemCreate("text", 16)
        raw.GMGMemSetString(block, 2, "旋盤")
        self.assertEqual(string(raw.GMGMemGetString(block, 2)), "旋盤")
        self.assertEqual(string(raw.GMGMemGetString(block, 6)), "")
        raw.GMGMemDelete(block)

    def test_with_a_nul_inside_is_refused(self):
        with self.assertRaisesRegex(ctypes.ArgumentError, "ends at its first NUL"):
            raw.GDGetStringLength("a\0b", -1)

    def test_is_no_bytes_and_no_address(self):
        for value in (b"a", bytearray(b"a"), 5):
            with self.assertRaisesRegex(ctypes.ArgumentError, "a str is wanted"):
                raw.GDGetStringLength(value, -1)


class Numbers(Started):
    def test_keep_to_their_ranges(self):
        for value in (-0x8001, 0x8000):
            with self.assertRaisesRegex(ctypes.ArgumentError, "is not between -32768 and 32767"):
                raw.GDMoveTo(self.display.handle, 0, value)

    def test_are_whole(self):
        for value in (1.5, "1", None):
            with self.assertRaisesRegex(ctypes.ArgumentError, "a whole number is wanted"):
                raw.GDMoveTo(self.display.handle, 0, value)

    def test_of_minus_one_set_all_bits(self):
        raw.GDSetPenColor(self.display.handle, -1)
        self.assertEqual(self.display.handle.contents.penColor, raw.G_NO_COLOR)


class Records(Started):
    def test_are_read_and_written(self):
        rect = raw.GRect(1, 2, 30, 40)
        raw.GROffsetRect(rect, 5, -2)
        self.assertEqual((rect.left, rect.top, rect.right, rect.bottom), (6, 0, 35, 38))
        self.assertTrue(raw.GRPointInRect(raw.GPoint(6, 38), rect))

    def test_come_by_pointer(self):
        surface = raw.GDCreateVVram(10, 5, 16)
        self.assertEqual((surface.contents.width, surface.contents.bytesPerLine), (10, 20))
        raw.GDDeleteVram(surface)

    def test_of_another_kind_are_refused(self):
        with self.assertRaises(ctypes.ArgumentError):
            raw.GROffsetRect(raw.GPoint(1, 2), 5, -2)


class Callbacks(Started):
    def test_are_called(self):
        numbers = (ctypes.c_int32 * 5)(1, 3, 5, 7, 9)
        wanted = ctypes.c_int32(7)

        def order(a, b):
            first, second = (ctypes.c_int32.from_address(address).value for address in (a, b))
            return (first > second) - (first < second)

        found = raw.GUBSearch(ctypes.byref(wanted), numbers, 5, 4, raw.GUBCompare(order))
        self.assertEqual(found, ctypes.addressof(numbers) + 3 * 4)

    def test_live_while_the_platform_has_them(self):
        taken = []
        raw.GEInitEvent()
        raw.GPIHostSetMessageHandler(
            raw.GPIHostMessageHandler(lambda _, message: taken.append(message.contents.number)),
            None)
        gc.collect()
        raw.GPIHostFeedKey(raw.GPI_KEY_F1, 1)
        raw.GEGetEvent(raw.GEventMsg(), 50)
        raw.GPIHostSetMessageHandler(raw.GPIHostMessageHandler(), None)
        raw.GEQuitEvent()
        self.assertEqual(taken, [raw.G_MESSAGE_KEY_DOWN])


class Memory(Started):
    def test_is_a_bytearray_that_is_written(self):
        data = bytearray(4)
        point = memoryview(data)
        raw.GPTDuplicatePoint(raw.GPoint(1, -1), point)
        self.assertEqual(bytes(data), bytes(raw.GPoint(1, -1)))

    def test_is_bytes_that_are_read(self):
        def order(a, b):
            return ctypes.c_uint8.from_address(a).value - ctypes.c_uint8.from_address(b).value

        self.assertTrue(raw.GUBSearch(b"\2", b"\1\2\3", 3, 1, raw.GUBCompare(order)))
        self.assertFalse(raw.GUBSearch(b"\4", b"\1\2\3", 3, 1, raw.GUBCompare(order)))

    def test_is_an_address_that_the_library_gave(self):
        block = raw.GMGMemCreate("block", 8)
        raw.GMGMemSetShort(block, 2, -2)
        self.assertEqual(raw.GMGMemGetShort(block, 2), -2)
        raw.GMGMemDelete(block)

    def test_is_no_string(self):
        with self.assertRaisesRegex(ctypes.ArgumentError, "say how it is encoded"):
            raw.GMGMemGetShort("block", 0)


class Handles(Started):
    def test_that_are_none_are_refused(self):
        null = ctypes.POINTER(raw.GDrawHandle)()
        for value in (None, 5, null):
            with self.assertRaisesRegex(ctypes.ArgumentError, "a draw handle is wanted"):
                raw.GDMoveTo(value, 0, 0)

    def test_are_refused_once_closed(self):
        handle = raw.GDOpenDrawHandle(0, 0)
        raw.GDMoveTo(handle, 3, 4)
        self.assertEqual(handle.contents.penPos.y, 4)
        raw.GDCloseDrawHandle(handle)
        with self.assertRaisesRegex(ctypes.ArgumentError, "the draw handle is closed"):
            raw.GDMoveTo(handle, 0, 0)


if __name__ == "__main__":
    unittest.main()
