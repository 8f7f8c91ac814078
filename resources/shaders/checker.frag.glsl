// Squares of 50 pixels at zoom 1, counted from the picture's top left corner.
uniform vec2 offset;
uniform float zoomFactor;

void main()
{
    vec2 p = gl_FragCoord.xy - offset;
    bool odd = int(mod(p.x / 50.0 / zoomFactor, 2.0)) == 1;
    if (int(mod(p.y / 50.0 / zoomFactor, 2.0)) == 1)
        odd = !odd;
    fragColor = odd ? vec4(0.5, 0.5, 0.5, 1.0) : vec4(0.7, 0.7, 0.7, 1.0);
}
