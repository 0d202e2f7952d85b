--  The parent of the generated package of widgets, for which this context clause stands here.

with XK;

package Zoom_Own is
end Zoom_Own;
