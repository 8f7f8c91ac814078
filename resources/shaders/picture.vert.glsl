ATTRIBUTE vec3 vertex;
ATTRIBUTE vec2 vertTexCoord;
VARYING vec2 fragTexCoord;
uniform mat4 matrix;

void main()
{
    gl_Position = matrix * vec4(vertex, 1.0);
    fragTexCoord = vertTexCoord;
}
